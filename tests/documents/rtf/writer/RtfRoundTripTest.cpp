// SPDX-License-Identifier: MIT
// RtfReader reads what RtfWriter writes as an equal text.
#include "documents/rtf/RtfReader.h"
#include "documents/rtf/writer/RtfWriter.h"

#include "tests/documents/rtf/writer/RandomText.h"
#include "tests/documents/rtf/writer/TextDifference.h"
#include "tests/harness/QuillbayTest.h"

#include <vector>

namespace {

/// Stores attachments under numbers.
class NumberedFiles {
public:
    QString nameFor(const Attachment &attachment)
    {
        m_contents.push_back(attachment.contents);
        return QString::number(m_contents.size() - 1);
    }
    [[nodiscard]] std::shared_ptr<const Attachment> attachment(const QString &name) const
    {
        bool isNumber = false;
        const qulonglong number = name.toULongLong(&isNumber);
        if (!isNumber || number >= m_contents.size())
            return nullptr;
        return std::make_shared<const Attachment>(Attachment{name, m_contents[number]});
    }

private:
    std::vector<QByteArray> m_contents;
};

AttributedString writtenAndRead(const AttributedString &text, qsizetype start, qsizetype length)
{
    NumberedFiles files;
    const QByteArray rtf = writeRtf(text, start, length, [&](const Attachment &attachment) {
        return files.nameFor(attachment);
    }).value();
    return readRtf(rtf, [&](const QString &name) { return files.attachment(name); }).value();
}

} // namespace

TEST(RtfRoundTrip, SmallRandomTextsStayEqual)
{
    for (unsigned seed = 0; seed < 3000; ++seed) {
        const AttributedString text = RandomText(seed).text(8, 12);
        ASSERT_EQ(differenceBetween(text, writtenAndRead(text, 0, text.length())), QString())
            << "seed " << seed;
    }
}

TEST(RtfRoundTrip, LargeRandomTextsStayEqual)
{
    for (unsigned seed = 0; seed < 4; ++seed) {
        const AttributedString text = RandomText(seed).text(20'000, 40);
        ASSERT_EQ(differenceBetween(text, writtenAndRead(text, 0, text.length())), QString())
            << "seed " << seed;
    }
}

TEST(RtfRoundTrip, RangesStayEqual)
{
    std::mt19937 random(1);
    for (unsigned seed = 0; seed < 1000; ++seed) {
        const AttributedString text = RandomText(seed).text(6, 12);
        const auto bound = static_cast<size_t>(text.length()) + 1;
        const auto start = static_cast<qsizetype>(random() % bound);
        const auto length = static_cast<qsizetype>(random() % bound);
        ASSERT_EQ(
            differenceBetween(rangeOf(text, start, length), writtenAndRead(text, start, length)), QString())
            << "seed " << seed;
    }
}

TEST(RtfRoundTrip, EveryCodeUnitStaysEqual)
{
    QString units;
    for (int unit = 0; unit <= 0xFFFF; ++unit)
        units += QChar(static_cast<char16_t>(unit));
    const AttributedString text(units);
    EXPECT_EQ(differenceBetween(text, writtenAndRead(text, 0, text.length())), QString());
}

TEST(RtfRoundTrip, EveryCodeUnitStaysEqualInNames)
{
    constexpr int nameLength = 1024;
    for (int first = 0; first <= 0xFFFF; first += nameLength) {
        TextAttributes attributes;
        for (int unit = first; unit < first + nameLength; ++unit)
            attributes.language += QChar(static_cast<char16_t>(unit));
        attributes.font = FontAttributes{attributes.language};
        attributes.attachment = std::make_shared<const Attachment>(Attachment{attributes.language, "data"});
        const AttributedString text(QStringLiteral("\uFFFC"), attributes);
        EXPECT_TRUE(text == writtenAndRead(text, 0, text.length())) << first;
    }
}
