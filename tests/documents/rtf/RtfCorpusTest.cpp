// SPDX-License-Identifier: MIT
// Compares documents of many programs with the texts that another RTF reader extracts from them.
#include "tests/documents/rtf/RtfDocuments.h"

#include <QDir>
#include <QRegularExpression>
#include <QStringList>

using namespace RtfDocuments;

namespace {

struct Deviation {
    const char *name;
    const char *reason;
};

constexpr Deviation deviations[] = {
    {"encoding", "the other reader continues after the brace that closes the document"},
    {"issue_29_bad",
        "the other reader takes a cell that begins with an empty paragraph for the end of a row"},
    {"issue_63", "the other reader keeps the numbers of lists"},
    {"nested_table", "the other reader ends no row of a table inside a cell"},
};

bool isDeviation(const QString &name)
{
    return std::ranges::any_of(
        deviations, [&](const Deviation &known) { return name == QLatin1StringView(known.name); });
}

/// Normalized lines: the other reader writes a pipe after each cell, a line end after each row too, and the
/// address of a link after its text.
QStringList linesOf(QString text)
{
    static const QRegularExpression address(QStringLiteral("\\(\"[^\"]*\"\\)"));
    text.remove(address);
    text.replace(QStringLiteral("|\n"), QStringLiteral("\n"));
    text.replace(u'|', u'\n');
    text.replace(QChar(QChar::LineSeparator), u'\n');
    text.replace(u'\u000C', u'\n');
    QStringList lines = text.split(u'\n');
    for (QString &line : lines)
        line = line.simplified();
    while (!lines.isEmpty() && lines.back().isEmpty())
        lines.removeLast();
    return lines;
}

} // namespace

TEST(RtfReader, ReadsTheCorpusLikeAnotherReader)
{
    const QDir folder(corporaFolder() + QStringLiteral("/striprtf/tests"));
    if (corporaFolder().isEmpty() || !folder.exists())
        GTEST_SKIP() << "the corpus is not installed";
    int compared = 0;
    for (const QFileInfo &file :
        QDir(folder.filePath(QStringLiteral("rtf"))).entryInfoList({QStringLiteral("*.rtf")})) {
        QFile rtf(file.filePath());
        QFile text(folder.filePath(QStringLiteral("text/%1.txt").arg(file.completeBaseName())));
        ASSERT_TRUE(rtf.open(QIODevice::ReadOnly));
        const AttributedString ours = read(rtf.readAll());
        expectSound(ours);
        if (!text.open(QIODevice::ReadOnly))
            continue;
        ++compared;
        const bool isEqual = linesOf(ours.string()) == linesOf(QString::fromUtf8(text.readAll()));
        EXPECT_NE(isEqual, isDeviation(file.completeBaseName())) << file.fileName().toStdString();
    }
    EXPECT_GE(compared, 33);
}
