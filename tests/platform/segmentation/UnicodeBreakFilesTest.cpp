// SPDX-License-Identifier: MIT
// The test files of the Unicode Character Database, run through BreakIterator.
#include "platform/segmentation/BreakIterator.h"

#include "tests/harness/QuillbayTest.h"

#include <QFile>

#include <vector>

namespace {

struct BreakCase {
    QByteArray line;
    QString text;
    std::vector<qsizetype> boundaries; ///< without position 0
};

// A line looks like "÷ 0061 × 0308 ÷ # comment", with a division sign at every boundary.
std::vector<BreakCase> casesOf(const QString &fileName)
{
    QFile file(QStringLiteral("/usr/share/unicode/auxiliary/") + fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "install the package unicode-data: no " << file.fileName().toStdString();
        return {};
    }
    std::vector<BreakCase> cases;
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        line.truncate(line.indexOf('#') < 0 ? line.size() : line.indexOf('#'));
        if (line.trimmed().isEmpty())
            continue;
        BreakCase breakCase{line.trimmed(), {}, {}};
        for (const QByteArray &token : line.simplified().split(' ')) {
            if (token == "\u00F7") {
                if (!breakCase.text.isEmpty())
                    breakCase.boundaries.push_back(breakCase.text.size());
            } else if (token != "\u00D7") {
                breakCase.text +=
                    QString::fromUcs4(std::vector<char32_t>{token.toUInt(nullptr, 16)}.data(), 1);
            }
        }
        cases.push_back(breakCase);
    }
    return cases;
}

std::vector<BreakCase> deviations(BreakKind kind, const QString &fileName, size_t expectedCases)
{
    const std::vector<BreakCase> cases = casesOf(fileName);
    EXPECT_EQ(cases.size(), expectedCases);
    BreakIterator iterator(kind);
    std::vector<BreakCase> deviating;
    for (const BreakCase &breakCase : cases) {
        std::vector<qsizetype> boundaries;
        iterator.setText(breakCase.text);
        for (qsizetype boundary = iterator.next(); boundary >= 0; boundary = iterator.next())
            boundaries.push_back(boundary);
        if (boundaries != breakCase.boundaries)
            deviating.push_back(breakCase);
    }
    return deviating;
}

} // namespace

// In ICU 72 the colon does not join two words (CLDR 42); in Unicode 15 it does.
TEST(UnicodeBreakFiles, WordBreakTestPassesExceptForFifteenCasesWithAColon)
{
    const std::vector<BreakCase> deviating =
        deviations(BreakKind::Word, QStringLiteral("WordBreakTest.txt"), 1823);
    EXPECT_EQ(deviating.size(), 15U);
    for (const BreakCase &breakCase : deviating)
        EXPECT_TRUE(breakCase.text.contains(u':')) << breakCase.line.toStdString();
}

TEST(UnicodeBreakFiles, SentenceBreakTestPasses)
{
    for (const BreakCase &breakCase :
        deviations(BreakKind::Sentence, QStringLiteral("SentenceBreakTest.txt"), 502))
        ADD_FAILURE() << breakCase.line.toStdString();
}

TEST(UnicodeBreakFiles, GraphemeBreakTestPasses)
{
    for (const BreakCase &breakCase :
        deviations(BreakKind::GraphemeCluster, QStringLiteral("GraphemeBreakTest.txt"), 602))
        ADD_FAILURE() << breakCase.line.toStdString();
}
