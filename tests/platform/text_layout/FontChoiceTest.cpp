// SPDX-License-Identifier: MIT
#include "platform/text_layout/FontLibrary.h"
#include "platform/text_layout/LayoutEngine.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/text_layout/FontWorld.h"

#include <QFileInfo>

namespace {

const QStringList urwFiles{QStringLiteral("NimbusSans-Regular.otf"), QStringLiteral("NimbusSans-Bold.otf"),
    QStringLiteral("NimbusSans-Italic.otf"), QStringLiteral("NimbusSans-BoldItalic.otf"),
    QStringLiteral("NimbusSans-Regular.t1"), QStringLiteral("NimbusRoman-Regular.otf"),
    QStringLiteral("NimbusRoman-Regular.t1"), QStringLiteral("NimbusMonoPS-Regular.otf"),
    QStringLiteral("C059-Roman.otf")};

class FontChoice : public QuillbayTest {
protected:
    static QString fileFor(const FontAttributes &attributes, const QString &text = QStringLiteral("a"),
        const QString &language = {})
    {
        FontLibrary library;
        FontChain *chain = library.chainFor(attributes, language);
        return chain ? QFileInfo(QFile::decodeName(chain->faceFor(text, nullptr)->source().path)).fileName()
                     : QString();
    }

    static QString fileFor(const char *family, const char16_t *text = u"a", const char *language = "")
    {
        return fileFor(FontAttributes{.family = QString::fromLatin1(family)}, QString::fromUtf16(text),
            QString::fromLatin1(language));
    }
};

TEST_F(FontChoice, TakesTheFontsWithTheAdvancesOfTheOneThatIsNamed)
{
    useOnlyFonts(urwFiles);
    EXPECT_EQ(fileFor("Helvetica"), QStringLiteral("NimbusSans-Regular.otf"));
    EXPECT_EQ(fileFor("Arial"), QStringLiteral("NimbusSans-Regular.otf"));
    EXPECT_EQ(fileFor("Times New Roman"), QStringLiteral("NimbusRoman-Regular.otf"));
    EXPECT_EQ(fileFor("TimesNewRomanPSMT"), QStringLiteral("NimbusRoman-Regular.otf"));
    EXPECT_EQ(fileFor("Courier"), QStringLiteral("NimbusMonoPS-Regular.otf"));
    EXPECT_EQ(fileFor("c059"), QStringLiteral("C059-Roman.otf"));
    EXPECT_EQ(fileFor("A Font That Nobody Has"), QStringLiteral("NimbusSans-Regular.otf"));
    EXPECT_EQ(fileFor(""), QStringLiteral("NimbusSans-Regular.otf"));
}

TEST_F(FontChoice, HonoursWeightAndSlantAlsoInPostScriptNames)
{
    useOnlyFonts(urwFiles);
    FontAttributes attributes{.family = QStringLiteral("Helvetica")};
    attributes.weight = 700;
    EXPECT_EQ(fileFor(attributes), QStringLiteral("NimbusSans-Bold.otf"));
    attributes.slant = FontSlant::Italic;
    EXPECT_EQ(fileFor(attributes), QStringLiteral("NimbusSans-BoldItalic.otf"));
    attributes.slant = FontSlant::Oblique;
    attributes.weight = 500;
    EXPECT_EQ(fileFor(attributes), QStringLiteral("NimbusSans-Italic.otf"));
    EXPECT_EQ(fileFor("Helvetica-BoldOblique"), QStringLiteral("NimbusSans-BoldItalic.otf"));
    EXPECT_EQ(fileFor("NimbusSans-Bold"), QStringLiteral("NimbusSans-Bold.otf"));
}

TEST_F(FontChoice, NeverUsesAFontThatIsNotSfnt)
{
    useOnlyFonts({QStringLiteral("NimbusSans-Regular.t1")});
    EXPECT_TRUE(FontLibrary().isEmpty());
}

TEST_F(FontChoice, FindsAFontForWhatTheNamedOneLacks)
{
    useOnlyFonts({QStringLiteral("NimbusSans-Regular.otf"), QStringLiteral("NotoNaskhArabic-Regular.ttf"),
        QStringLiteral("NotoSansArabic-Regular.ttf"), QStringLiteral("NotoSansArabic-Bold.ttf"),
        QStringLiteral("NotoSansDevanagari-Regular.ttf"), QStringLiteral("NotoColorEmoji.ttf")});
    EXPECT_EQ(fileFor("Helvetica", u"ب"), QStringLiteral("NotoSansArabic-Regular.ttf"));
    EXPECT_EQ(fileFor("Helvetica-Bold", u"ب"), QStringLiteral("NotoSansArabic-Bold.ttf"));
    EXPECT_EQ(fileFor("Noto Naskh Arabic", u"ب"), QStringLiteral("NotoNaskhArabic-Regular.ttf"));
    EXPECT_EQ(fileFor("Helvetica", u"क्ष"), QStringLiteral("NotoSansDevanagari-Regular.ttf"));
    EXPECT_EQ(fileFor("Helvetica", u"👩‍👩‍👧"), QStringLiteral("NotoColorEmoji.ttf"));
    EXPECT_EQ(fileFor("Helvetica", u"漢"), QStringLiteral("NimbusSans-Regular.otf")) << "no font has it";
}

TEST_F(FontChoice, PrefersAColouredFontForEmojiAndNothingElse)
{
    useOnlyFonts({QStringLiteral("NimbusSans-Regular.otf"), QStringLiteral("DejaVuSans.ttf"),
        QStringLiteral("NotoColorEmoji.ttf")});
    EXPECT_EQ(fileFor("Helvetica", u"😀"), QStringLiteral("NotoColorEmoji.ttf"));
    EXPECT_EQ(fileFor("Helvetica", u"☂"), QStringLiteral("DejaVuSans.ttf"));
    EXPECT_EQ(fileFor("Helvetica", u"☂\uFE0F"), QStringLiteral("NotoColorEmoji.ttf"));
    EXPECT_EQ(fileFor("DejaVu Sans", u"😀"), QStringLiteral("DejaVuSans.ttf")) << "the text names it";
}

TEST_F(FontChoice, StaysInAFallbackFontAsLongAsItCan)
{
    useOnlyFonts({QStringLiteral("NotoSansHebrew-Regular.ttf"),
        QStringLiteral("NotoSansDevanagari-Regular.ttf"), QStringLiteral("NotoSansBengali-Regular.ttf")});
    FontLibrary library;
    FontChain *chain = library.chainFor(FontAttributes{.family = QStringLiteral("Noto Sans Hebrew")}, {});
    FontFace *devanagari = chain->faceFor(u"क", nullptr);
    FontFace *bengali = chain->faceFor(u"ক", nullptr);
    ASSERT_NE(devanagari, bengali);
    EXPECT_EQ(chain->faceFor(u"।", devanagari), devanagari);
    EXPECT_EQ(chain->faceFor(u"।", bengali), bengali);
    EXPECT_NE(chain->faceFor(u"א", bengali), bengali) << "the named font has it";
}

TEST_F(FontChoice, PrefersAFontForTheLanguageOfTheText)
{
    useOnlyFonts({QStringLiteral("NimbusSans-Regular.otf"), QStringLiteral("NotoKufiArabic-Regular.ttf"),
        QStringLiteral("NotoNastaliqUrdu-Regular.ttf")});
    EXPECT_EQ(fileFor("Helvetica", u"ب"), QStringLiteral("NotoKufiArabic-Regular.ttf"));
    EXPECT_EQ(fileFor("Helvetica", u"ب", "ks"), QStringLiteral("NotoNastaliqUrdu-Regular.ttf"))
        << "Kufi lacks letters of Kashmiri";
}

TEST_F(FontChoice, IsTheSameWhereverTheFilesLie)
{
    QStringList files = urwFiles;
    useOnlyFonts(files);
    const QString first = fileFor("Unknown", u"ß");
    std::reverse(files.begin(), files.end());
    useOnlyFonts(files);
    EXPECT_EQ(fileFor("Unknown", u"ß"), first);
}

TEST_F(FontChoice, ReadsLanguagesDownToFewForms)
{
    EXPECT_EQ(canonicalLanguage(u"de-CH-1996"), "de");
    EXPECT_EQ(canonicalLanguage(u"EN_us"), "en");
    EXPECT_EQ(canonicalLanguage(u"zh"), "zh-cn");
    EXPECT_EQ(canonicalLanguage(u"zh-Hant-HK"), "zh-hk");
    EXPECT_EQ(canonicalLanguage(u""), "");
    EXPECT_EQ(canonicalLanguage(u"x-klingon"), "");
    EXPECT_EQ(canonicalLanguage(u"abcdefgh"), "");
}

TEST_F(FontChoice, MeasuresWithAFixedWidthWithoutFontsAndLogsThatOnce)
{
    useOnlyFonts({});
    const RecordingLogSink log;
    LayoutEngine engine;
    const double column = 10 * 12 * fontlessAdvance;
    EXPECT_EQ(engine.countLines(AttributedString(QStringLiteral("0123456789")), column), 1U);
    EXPECT_EQ(engine.countLines(AttributedString(QStringLiteral("0123456789a")), column), 2U);
    EXPECT_EQ(engine.countLines(AttributedString(QStringLiteral("e\u0301").repeated(10)), column), 1U);
    EXPECT_EQ(engine.countLines(AttributedString(QStringLiteral("ab cd\u00ADef\n\tx")), 0), 9U);
    EXPECT_EQ(log.messages().size(), 1);
}

} // namespace
