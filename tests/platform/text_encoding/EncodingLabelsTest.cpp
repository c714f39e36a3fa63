// SPDX-License-Identifier: MIT
#include "platform/text_encoding/EncodingLabels.h"
#include "platform/text_encoding/EncodingConverter.h"
#include "platform/text_encoding/JohabText.h"

#include <gtest/gtest.h>

namespace {

QString textOf(const QByteArray &bytes, const char *label)
{
    const char *const encoding = encodingOfLabel(label);
    return encoding ? decodeText(bytes, encoding) : QString();
}

} // namespace

TEST(EncodingLabels, AreThoseThatBrowsersKnow)
{
    EXPECT_EQ(textOf("caf\xC3\xA9", " UTF8\n"), QStringLiteral("café"));
    for (const char *label : {"latin1", "ISO-8859-1", "iso_8859-1:1987", "l1", "cp1252", "ascii", "US-ASCII"})
        EXPECT_EQ(textOf("\x93\xE9\x94", label), QStringLiteral("“é”")) << label;
    for (const char *label : {"gb2312", "GBK", "x-gbk", "chinese"})
        EXPECT_EQ(textOf("\xD6\xD0\x81\x40", label), QStringLiteral("中丂")) << label;
    EXPECT_EQ(textOf("\xFD\xFE", "latin5"), QStringLiteral("ış"));
    EXPECT_EQ(textOf("\xB1\xE3", "latin2"), QStringLiteral("ąă"));
    EXPECT_EQ(textOf("\x8F\xE0", "cp866"), QStringLiteral("Пр"));
    EXPECT_EQ(textOf("\x82\xA0", "sjis"), QStringLiteral("あ"));
}

TEST(EncodingLabels, NamesThatAreNotListedHaveNoEncoding)
{
    for (const char *label :
        {"BOCU-1", "SCSU", "UTF-7", "CESU-8", "ibm-930", "utf-8;x", "latin-none", "", " "})
        EXPECT_EQ(encodingOfLabel(label), nullptr) << label;
    EXPECT_EQ(encodingOfLabel(QByteArray("utf-8").rightJustified(10'000)), nullptr);
    EXPECT_EQ(encodingOfLabel(QByteArrayView("utf\0008", 6)), nullptr);
}

TEST(EncodingConverter, MakesRoomForEncodingsThatMakeMoreCodeUnitsThanBytes)
{
    const QByteArray bytes = QByteArray("\x12\xF0\xF1\xF2", 4).repeated(1000);
    QString text;
    EncodingConverter("SCSU").append(bytes, text);
    EncodingConverter("BOCU-1").append(bytes, text);
    EXPECT_FALSE(text.isEmpty());
}

TEST(EncodingConverter, AnEncodingThatIcuLacksIsReadAsLatin1)
{
    QString text;
    EncodingConverter("no such encoding").append("caf\xE9", text);
    EXPECT_EQ(text, QStringLiteral("café"));
}

TEST(EncodingConverter, DecodesEveryPairOfBytesInEveryListedEncoding)
{
    QByteArray pairs;
    for (int first = 0; first < 256; ++first) {
        for (int second = 0x20; second < 256; second += 3)
            pairs.append(static_cast<char>(first)).append(static_cast<char>(second));
    }
    for (const char *label :
        {"big5", "euc-jp", "euc-kr", "euc-tw", "gb18030", "hz-gb-2312", "iso-2022-cn", "iso-2022-jp",
            "iso-2022-kr", "johab", "shift_jis", "utf-16", "utf-32", "utf-8", "windows-1255", "windows-1258"})
        EXPECT_FALSE(textOf(pairs, label).isEmpty()) << label;
}

TEST(JohabText, SpellsSyllablesLettersSignsAndHanja)
{
    EXPECT_EQ(textOfJohab("\xD0\x65\x8B\x69 1"), QStringLiteral("한글 1"));
    EXPECT_EQ(textOfJohab("\x88\x41\x84\x61"), QStringLiteral("ㄱㅏ"));
    EXPECT_EQ(textOfJohab("\xD9\x32\xF7\xDB"), QStringLiteral("、韓"));
}

TEST(JohabText, ReplacesWhatIsNoCharacter)
{
    EXPECT_EQ(textOfJohab("\xD0"), QStringLiteral(u"\uFFFD"));
    EXPECT_EQ(textOfJohab("\xFF\x80z"), QStringLiteral(u"\uFFFD\uFFFDz"));
    EXPECT_EQ(textOfJohab("\xD4\x41"), QStringLiteral(u"\uFFFDA"));
}
