// SPDX-License-Identifier: MIT
// Compares the lines that are filled by adding up advances with those of the simple layout, which shapes
// whole runs: every line must end at the same place.
#include "platform/text_layout/LayoutEngine.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/text_layout/FontWorld.h"

#include <QFile>

#include <random>

namespace {

using Ends = std::vector<qsizetype>;

class LineFilling : public QuillbayTest {
protected:
    struct Filler {
        FontLibrary fonts;
        Shaper shaper;
        LineBreaks breaks;
        LineFiller lines{fonts, shaper, breaks};

        std::optional<Ends> endsOf(const AttributedString &text, double width)
        {
            Ends ends;
            const std::optional<quint64> count =
                lines.countLines(text, paragraphAt(text.string(), 0), width, &ends);
            EXPECT_EQ(count.value_or(ends.size()), ends.size());
            return count ? std::optional(ends) : std::nullopt;
        }
    };

    static Ends exactEndsOf(LayoutEngine &engine, const AttributedString &text, double width)
    {
        Ends ends;
        engine.layOutParagraph(text, paragraphAt(text.string(), 0), width,
            [&](const LineFragment &line) { ends.push_back(line.start + line.length); });
        return ends;
    }

    static AttributedString styled(const QString &text, const QString &family = QStringLiteral("Helvetica"))
    {
        TextAttributes attributes;
        attributes.font = FontAttributes{.family = family};
        return AttributedString(text, attributes);
    }
};

// Texts of one script each: words, and characters in any order.
struct Sample {
    const char *name;
    QStringList words;
    QString characters;
};

QString asciiCharacters()
{
    QString characters;
    for (char16_t unit = u' '; unit <= u'~'; ++unit)
        characters += unit;
    return characters + QStringLiteral("     \t\t\u0001\v");
}

const std::vector<Sample> &samples()
{
    static const std::vector<Sample> texts{
        {"English",
            QStringLiteral("the of and to AVATAR To, Ty. \"Wo\", offer fly official affluent ffff "
                           "well-known $5.00 3,000 (see it's) Yes! T. VA r. flfi f-fi 1/2 A W1111 "
                           "incomprehensibilities I a , — “so” ‘fi’ it’s")
                .split(u' '),
            asciiCharacters()},
        {"controls",
            QStringLiteral("a AV \u0001 x\u0001fi f\u007Fi \v \f T\u2028. \u0085 \u0002\u0003").split(u' '),
            QStringLiteral("afiTV.  \u0001\u0085\v\t\u2028")},
        {"German",
            QStringLiteral("über Straße Größe Auflage Öffnung „gut“ – Tür, daß Donaudampfschiff "
                           "Rangierlokomotive 14,50 € ß")
                .split(u' '),
            QStringLiteral("aäoöuüßefflTVÄÖÜ  „“–,.-")},
        {"French", QStringLiteral("l’été où ça « Œuvre » français naïf Noël ! À être — Île").split(u' '),
            QStringLiteral("éèêëàâîïôœçfi ’«\u00A0» ")},
        {"Polish", QStringLiteral("zażółć gęślą jaźń Łódź Wałęsa święty ćma TĄ VŻ").split(u' '),
            QStringLiteral("ąćęłńóśźżŁT -.")},
        {"Russian",
            QStringLiteral("Привет, где находится ГУМ? «Тарас» – уже; объяснение Ёлка У. 1941 г.")
                .split(u' '),
            QStringLiteral("абвгдежзТУГЁ,. -«»")},
        {"Greek", QStringLiteral("Γειά σου Ελλάδα, τα Άλφα και Ωμέγα· ναι;").split(u' '),
            QStringLiteral("αβγδεάήΑΥΤ ,.·-")},
    };
    return texts;
}

QString randomText(const Sample &sample, std::mt19937 &random)
{
    const auto oneOf = [&](qsizetype count) {
        return static_cast<qsizetype>(random() % static_cast<size_t>(count));
    };
    QString text;
    const auto length = 1 + oneOf(900);
    const bool isOfWords = random() % 3 != 0;
    while (text.size() < length) {
        if (!isOfWords) {
            text += sample.characters[oneOf(sample.characters.size())];
            continue;
        }
        text += sample.words[oneOf(sample.words.size())];
        const QStringView separators[]{u" ", u" ", u" ", u" ", u" ", u" ", u"  ", u"\t", u"-", u""};
        text += separators[random() % 10];
    }
    return text;
}

TextAttributes randomAttributes(const QStringList &families, std::mt19937 &random)
{
    TextAttributes attributes;
    FontAttributes font;
    font.family = families[static_cast<qsizetype>(random() % static_cast<size_t>(families.size()))];
    font.pointSize = random() % 2 ? 12 : 5 + static_cast<double>(random() % 400) / 13;
    font.weight = random() % 3 ? regularFontWeight : boldFontWeight;
    font.slant = random() % 4 ? FontSlant::Upright : FontSlant::Italic;
    font.tracking = random() % 8 ? 0 : 0.7;
    attributes.font = font;
    ParagraphStyle &style = attributes.paragraphStyle;
    if (random() % 3 == 0) {
        style.firstLineHeadIndent = static_cast<double>(random() % 60);
        style.headIndent = static_cast<double>(random() % 60);
        style.tailIndent = static_cast<double>(random() % 60);
        style.defaultTabInterval = random() % 2 ? 36 : 7.5;
    }
    if (random() % 4 == 0)
        style.tabStops = {{50, TabAlignment::Left}, {91.5, TabAlignment::Left}};
    return attributes;
}

TEST_F(LineFilling, EndsEveryLineWhereTheSimpleLayoutDoes)
{
    useOnlyFonts({QStringLiteral("NimbusSans-Regular.otf"), QStringLiteral("NimbusSans-Bold.otf"),
        QStringLiteral("NimbusRoman-Regular.otf"), QStringLiteral("NimbusRoman-Italic.otf"),
        QStringLiteral("NimbusMonoPS-Regular.otf"), QStringLiteral("DejaVuSans.ttf"),
        QStringLiteral("DejaVuSans-Bold.ttf"), QStringLiteral("NotoSans-Regular.ttf"),
        QStringLiteral("NotoSerif-Regular.ttf")});
    const QStringList families{QStringLiteral("Helvetica"), QStringLiteral("Times"),
        QStringLiteral("Courier"), QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans"),
        QStringLiteral("Noto Serif")};
    std::mt19937 random(30);
    LayoutEngine exact(LayoutEngine::Shaping::WholeRuns);
    for (const Sample &sample : samples()) {
        Filler filler; // of its own, as an engine has a limited number of tables
        int filled = 0;
        constexpr int rounds = 120;
        for (int round = 0; round < rounds; ++round) {
            const AttributedString text(randomText(sample, random), randomAttributes(families, random));
            const double width = random() % 6 ? 40 + static_cast<double>(random() % 5000) / 7
                                              : static_cast<double>(random() % 40);
            const std::optional<Ends> ends = filler.endsOf(text, width);
            if (!ends)
                continue;
            ++filled;
            ASSERT_EQ(*ends, exactEndsOf(exact, text, width))
                << sample.name << ", " << width << " points, "
                << text.attributesAt(0).font->family.toStdString() << ' '
                << text.attributesAt(0).font->pointSize << ": " << text.string().toStdString();
        }
        EXPECT_GE(filled, rounds * 2 / 3) << sample.name;
    }
}

const Sample &chineseSample()
{
    static const Sample sample{"Chinese",
        QStringLiteral("他们 现在 学校 图书馆 ， 。 “好” 2024 年 「引」 A").split(u' '),
        QStringLiteral("的一是不了，。！？（）1a ")};
    return sample;
}

// Words in several styles, scripts and fonts, among them fonts that the text does not name.
class MixedLineFilling : public LineFilling {
protected:
    void expectTheSameEnds(const std::vector<Sample> &parts)
    {
        useOnlyFonts({QStringLiteral("NimbusSans-Regular.otf"), QStringLiteral("NimbusSans-Bold.otf"),
            QStringLiteral("NimbusSans-Italic.otf"), QStringLiteral("DejaVuSans.ttf"),
            QStringLiteral("NotoSansCJK-Regular.ttc")});
        const QStringList families{QStringLiteral("Helvetica"), QStringLiteral("DejaVu Sans")};
        std::mt19937 random(33);
        std::optional<Filler> filler;
        LayoutEngine exact(LayoutEngine::Shaping::WholeRuns);
        int filled = 0;
        constexpr int rounds = 200;
        for (int round = 0; round < rounds; ++round) {
            if (round % 20 == 0)
                filler.emplace();
            AttributedStringBuilder builder;
            TextAttributes attributes = randomAttributes(families, random);
            attributes.font->tracking = 0;
            while (builder.length() < 500) {
                const QString words = randomText(parts[random() % parts.size()], random);
                builder.append(words.left(1 + static_cast<qsizetype>(random() % 80)), attributes);
                FontAttributes &font = *attributes.font;
                font.weight = random() % 2 ? regularFontWeight : boldFontWeight;
                font.slant = random() % 3 ? FontSlant::Upright : FontSlant::Italic;
                font.pointSize = random() % 2 ? 12 : 9.5;
            }
            const AttributedString text = builder.build();
            const double width = 40 + static_cast<double>(random() % 5000) / 7;
            const std::optional<Ends> ends = filler->endsOf(text, width);
            if (!ends)
                continue;
            ++filled;
            ASSERT_EQ(*ends, exactEndsOf(exact, text, width)) << width << ": " << text.string().toStdString();
        }
        EXPECT_GE(filled, rounds / 2);
    }
};

TEST_F(MixedLineFilling, EndsEveryLineWhereTheSimpleLayoutDoes)
{
    std::vector<Sample> parts = samples();
    parts.push_back(chineseSample());
    parts.push_back(
        {"Japanese", QStringLiteral("東京 です を コンピューター 、 。 「本」 っ ー Web").split(u' '),
            QStringLiteral("のはをに漢字カナ、。「」ー ")});
    expectTheSameEnds(parts);
}

TEST_F(MixedLineFilling, FillsKoreanAndWhatBytesThatAreNoTextAreTakenFor)
{
    expectTheSameEnds({chineseSample(),
        {"Korean", QStringLiteral("한국어 문장은 띄어쓰기가 있다. (이것은) 10개 “값” 뷁").split(u' '),
            QStringLiteral("가힣를이다1a .,(")},
        {"damaged", QStringLiteral("的\uE58E \uFFFDaT. 1Ж\u0001 가\uE000 \uFE60 \u3113ß \uFFFF").split(u' '),
            QStringLiteral("的一\uFFFD\uFFFD\uFFFDAVT.1\uE000\uE863\uF8FF\u0378\u2010\uFE63가\u0002가Ж ")}});
}

TEST_F(LineFilling, FillsPlainTextOnAMachineWithOneFont)
{
    useOnlyFonts({QStringLiteral("DejaVuSans.ttf")});
    std::mt19937 random(31);
    Filler filler;
    LayoutEngine exact(LayoutEngine::Shaping::WholeRuns);
    int filled = 0;
    for (int round = 0; round < 60; ++round) {
        const AttributedString text(randomText(samples().front(), random));
        const std::optional<Ends> ends = filler.endsOf(text, 200);
        if (!ends)
            continue;
        ++filled;
        ASSERT_EQ(*ends, exactEndsOf(exact, text, 200)) << text.string().toStdString();
    }
    EXPECT_GE(filled, 55);
}

// Of this font, digits among Chinese letters are kerned by the older 'kern' table, which no rule mentions.
TEST_F(LineFilling, HeedsKerningWithoutRules)
{
    if (!QFile::exists(QStringLiteral("/usr/share/fonts/truetype/liberation2/LiberationSerif-Regular.ttf")))
        GTEST_SKIP() << "the package fonts-liberation2 is not installed";
    useOnlyFonts({QStringLiteral("LiberationSerif-Regular.ttf"), QStringLiteral("NotoSansCJK-Regular.ttc")});
    Filler filler;
    LayoutEngine exact(LayoutEngine::Shaping::WholeRuns);
    for (const QString &text :
        {QStringLiteral("来2118的图书馆的这一大"), QStringLiteral("2 1 8 11 118 111 1111 21 12")}) {
        for (double width = 20; width < 120; width += 0.3) {
            const AttributedString tested = styled(text, QStringLiteral("Liberation Serif"));
            const Ends expected = exactEndsOf(exact, tested, width);
            ASSERT_EQ(filler.endsOf(tested, width).value_or(expected), expected) << width;
        }
    }
}

// Tables are discarded and made again.
TEST_F(LineFilling, FillsTextsInMoreStylesThanItHasTablesFor)
{
    useOnlyFonts({QStringLiteral("DejaVuSans.ttf")});
    Filler filler;
    LayoutEngine exact(LayoutEngine::Shaping::WholeRuns);
    const QString prose = QStringLiteral("All of these words have a style of their own. ").repeated(200);
    const Ends expected = exactEndsOf(exact, AttributedString(prose), 300);
    for (int style = 0; style < 120; ++style) {
        TextAttributes attributes;
        attributes.font = FontAttributes{.family = QStringLiteral("DejaVu Sans"), .weight = 300 + style % 60};
        const std::optional<Ends> ends = filler.endsOf(AttributedString(prose, attributes), 300);
        ASSERT_TRUE(ends) << style;
        ASSERT_EQ(*ends, expected) << style;
    }
}

TEST_F(LineFilling, BreaksLongWordsWithinLigaturesLikeTheSimpleLayout)
{
    useOnlyFonts({QStringLiteral("NimbusSans-Regular.otf")});
    std::mt19937 random(32);
    Filler filler;
    LayoutEngine exact(LayoutEngine::Shaping::WholeRuns);
    for (int round = 0; round < 20; ++round) {
        QString word;
        while (word.size() < 3000)
            word += QStringLiteral("fi fl o e AV x").split(u' ')[static_cast<qsizetype>(random() % 6)];
        const AttributedString text = styled(word);
        const double width = 20 + static_cast<double>(random() % 200);
        const std::optional<Ends> ends = filler.endsOf(text, width);
        ASSERT_TRUE(ends);
        ASSERT_EQ(*ends, exactEndsOf(exact, text, width)) << word.toStdString();
    }
}

TEST_F(LineFilling, LeavesWhatItCannotProveToTheSimpleLayout)
{
    useOnlyFonts({QStringLiteral("NimbusSans-Regular.otf"), QStringLiteral("DejaVuSans.ttf")});
    Filler filler;
    const QStringView plain = u"plain words";
    ASSERT_TRUE(filler.endsOf(styled(plain.toString()), 100));
    const QStringView others[]{u"soft\u00ADhyphen", u"e\u0301", u"1\u20442", u"a\u200Bb", u"شكرا",
        u"\xD83D\xDE00", u"a\uFFFC", u"한국어"};
    for (const QStringView other : others) {
        EXPECT_FALSE(filler.endsOf(styled(plain.toString() + other.toString()), 100))
            << other.toUtf8().toStdString();
        EXPECT_TRUE(filler.endsOf(styled(plain.toString()), 100)) << "after " << other.toUtf8().toStdString();
    }
    TextAttributes attributes;
    attributes.paragraphStyle.tabStops = {{50, TabAlignment::Right}};
    EXPECT_FALSE(filler.endsOf(AttributedString(QStringLiteral("a\tb"), attributes), 100));
    EXPECT_TRUE(filler.endsOf(AttributedString(QStringLiteral("a b"), attributes), 100));
    attributes.paragraphStyle.direction = WritingDirection::RightToLeft;
    EXPECT_FALSE(filler.endsOf(AttributedString(QStringLiteral("a b"), attributes), 100));
    EXPECT_FALSE(filler.endsOf(styled(plain.toString()), 1e6));
}

// The exact layout shapes a limited length at once and cuts where nothing changes. In this word, kerning is
// everywhere.
TEST_F(LineFilling, LeavesLongTextWithoutAPlaceForACutToTheSimpleLayout)
{
    useOnlyFonts({QStringLiteral("NimbusSans-Regular.otf")});
    Filler filler;
    LayoutEngine exact(LayoutEngine::Shaping::WholeRuns);
    const AttributedString shortWord = styled(QStringLiteral("AV").repeated(400));
    EXPECT_EQ(filler.endsOf(shortWord, 451), exactEndsOf(exact, shortWord, 451));
    EXPECT_FALSE(filler.endsOf(styled(QStringLiteral("AV").repeated(2000)), 451));
}

TEST_F(LineFilling, CountsTheLinesOfManyBlanksAndOfLongWords)
{
    useOnlyFonts({QStringLiteral("NimbusSans-Regular.otf")});
    Filler filler;
    LayoutEngine exact(LayoutEngine::Shaping::ByWords);
    for (const QString &text : {QString(300'000, u' '), QString(300'000, u'e'), QString(300'000, u'\u0000'),
             QStringLiteral("a") + QString(300'000, u' ') + QStringLiteral("\tb c")}) {
        const std::optional<Ends> ends = filler.endsOf(styled(text), 451);
        ASSERT_TRUE(ends);
        EXPECT_EQ(*ends, exactEndsOf(exact, styled(text), 451));
    }
}

} // namespace
