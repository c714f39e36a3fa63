// SPDX-License-Identifier: MIT
#include "documents/PlainTextReader.h"
#include "platform/text_encoding/EncodingConverter.h"

#include "tests/documents/SampleTexts.h"
#include "tests/harness/QuillbayTest.h"

using namespace SampleTexts;

namespace {

struct LegacyText {
    const char *name;
    const QString *text;
    const char *encoding;
};

void PrintTo(const LegacyText &text, std::ostream *stream)
{
    *stream << text.name << " in " << text.encoding;
}

class LegacyEncoding : public ::testing::TestWithParam<LegacyText> { };

const LegacyText legacyTexts[] = {
    {"English", &english, "windows-1252"},
    {"French", &french, "windows-1252"},
    {"German", &german, "windows-1252"},
    {"Spanish", &spanish, "windows-1252"},
    {"Italian", &italian, "windows-1252"},
    {"Portuguese", &portuguese, "windows-1252"},
    {"Swedish", &swedish, "windows-1252"},
    {"FrenchIso", &french, "ISO-8859-1"},
    {"Polish", &polish, "windows-1250"},
    {"PolishIso", &polish, "ISO-8859-2"},
    {"Czech", &czech, "windows-1250"},
    {"CzechIso", &czech, "ISO-8859-2"},
    {"Turkish", &turkish, "windows-1254"},
    {"TurkishIso", &turkish, "ISO-8859-9"},
    {"GreekIso", &greek, "ISO-8859-7"},
    {"Russian", &russian, "windows-1251"},
    {"RussianKoi8", &russian, "KOI8-R"},
    {"RussianIso", &russian, "ISO-8859-5"},
    {"Ukrainian", &ukrainian, "windows-1251"},
    {"UkrainianKoi8", &ukrainian, "KOI8-U"},
    {"Hebrew", &hebrew, "windows-1255"},
    {"Arabic", &arabic, "windows-1256"},
    {"ArabicIso", &arabic, "ISO-8859-6"},
    {"JapaneseShiftJis", &japanese, "Shift_JIS"},
    {"JapaneseEuc", &japanese, "EUC-JP"},
    {"JapaneseIso2022", &japanese, "ISO-2022-JP"},
    {"SimplifiedChinese", &simplifiedChinese, "GB18030"},
    {"SimplifiedChineseIso2022", &simplifiedChinese, "ISO-2022-CN"},
    {"TraditionalChinese", &traditionalChinese, "Big5"},
    {"TraditionalChineseIso2022", &traditionalChinese, "ISO-2022-CN"},
    {"Korean", &korean, "EUC-KR"},
    {"KoreanIso2022", &korean, "ISO-2022-KR"},
};

QString textOf(const QByteArray &bytes)
{
    return readPlainText(bytes).value().text;
}

QByteArray encodingOf(const QByteArray &bytes)
{
    return readPlainText(bytes).value().encoding;
}

} // namespace

TEST_P(LegacyEncoding, IsFoundByAFewSentences)
{
    const QByteArray bytes = encodeText(*GetParam().text, GetParam().encoding);
    EXPECT_EQ(textOf(bytes), *GetParam().text);
}

TEST_P(LegacyEncoding, IsFoundBehindAnyLengthOfAscii)
{
    const QString text = QStringLiteral("/* nothing but ASCII */\n").repeated(20'000) + *GetParam().text;
    EXPECT_EQ(textOf(encodeText(text, GetParam().encoding)), text);
}

TEST_P(LegacyEncoding, IsFoundByTheBeginningOfALongText)
{
    const QString text = GetParam().text->repeated(3000);
    EXPECT_EQ(textOf(encodeText(text, GetParam().encoding)), text);
}

INSTANTIATE_TEST_SUITE_P(Languages, LegacyEncoding, ::testing::ValuesIn(legacyTexts),
    [](const auto &language) { return std::string(language.param.name); });

TEST(LegacyEncodings, TheWordsBeforeTheFirstAccentCount)
{
    const QString text = QStringLiteral("Moja siostra czyta teraz bardzo dobra powie i mieszka nad rzeką.");
    EXPECT_EQ(textOf(encodeText(text, "ISO-8859-2")), text);
}

TEST(WesternEncoding, OneWordIsEnoughForTheLastResort)
{
    for (const char *word : {"café", "Voilà", "Müller", "naïve\n", "£5", "Größe", "It’s late.", "20 °C"}) {
        const QString text = QString::fromUtf8(word);
        EXPECT_EQ(textOf(encodeText(text, "windows-1252")), text);
    }
}

TEST(WesternEncoding, IsReportedAsTheSupersetOfIso8859_1)
{
    EXPECT_EQ(encodingOf(encodeText(french, "ISO-8859-1")), "windows-1252");
}

TEST(WesternEncoding, EveryByteIsACharacter)
{
    QByteArray bytes;
    for (int byte = 0x80; byte < 0x100; ++byte)
        bytes.append(static_cast<char>(byte));
    const QString text = decodeText(bytes, "windows-1252");
    EXPECT_EQ(text.size(), bytes.size());
    EXPECT_FALSE(text.contains(QChar::ReplacementCharacter));
}

TEST(KoreanEncoding, SyllablesOutsideTheStandardAreRead)
{
    const QString text = korean + QStringLiteral("똠방각하 펲시");
    EXPECT_EQ(textOf(encodeText(text, "windows-949")), text);
}

TEST(Iso2022, IsNotDetectedFromEscapeSequencesOfTerminals)
{
    const QByteArray colours = "\x1B[1mbold\x1B(B\x1B[m and plain\n";
    EXPECT_EQ(encodingOf(colours), "UTF-8");
    EXPECT_EQ(textOf(colours), QString::fromLatin1(colours));
    EXPECT_EQ(encodingOf("ends in an escape \x1B"), "UTF-8");
}

TEST(Iso2022, CharacterSetsOfLaterVariantsAreRead)
{
    EXPECT_EQ(textOf("\x1B$(D0!\x1B(B\n"), QStringLiteral("丂\n"));
    EXPECT_EQ(textOf("\x1B$@0!\x1B(B\n"), QStringLiteral("亜\n"));
    EXPECT_EQ(textOf("\x1B$B0!\x1B(I12\x1B(B\n"), QStringLiteral("亜ｱｲ\n"));
}

TEST(Iso2022, IsRuledOutByAByteAbove127)
{
    EXPECT_EQ(encodingOf("\x1B$B0!\x1B(B caf\xC3\xA9"), "UTF-8");
}

TEST(Iso2022, ReplacesWhatIsNoCharacter)
{
    EXPECT_EQ(textOf("\x1B$B0!\x7F\x7F\x1B(Bx"), QStringLiteral(u"亜\uFFFDx"));
}

using LocaleOfTheUser = QuillbayTest;

TEST_F(LocaleOfTheUser, DecidesWhereTheBytesDoNot)
{
    for (const auto &[locale, text] :
        {std::pair{"ru_RU.UTF-8", u"а"}, std::pair{"it_IT.UTF-8", u"à"}, std::pair{"he_IL.UTF-8", u"א"}}) {
        setLocale(locale);
        EXPECT_EQ(textOf("\xE0"), QString::fromUtf16(text)) << locale;
    }
}

TEST_F(LocaleOfTheUser, DoesNotOutweighASentence)
{
    for (const char *locale : {"ru_RU.UTF-8", "he_IL.UTF-8", "ja_JP.UTF-8", "pl_PL.UTF-8"}) {
        setLocale(locale);
        EXPECT_EQ(textOf(encodeText(german, "windows-1252")), german) << locale;
        EXPECT_EQ(textOf(encodeText(ukrainian, "KOI8-U")), ukrainian) << locale;
    }
}
