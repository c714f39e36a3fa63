// SPDX-License-Identifier: MIT
// Compares the fast way to measure, word by word with a cache, with the simple one, which shapes whole runs.
#include "platform/text_layout/LayoutEngine.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/text_layout/FontWorld.h"

#include <random>

namespace {

const QStringList fontFiles{QStringLiteral("NimbusSans-Regular.otf"),
    QStringLiteral("NimbusSans-BoldItalic.otf"), QStringLiteral("NimbusRoman-Regular.otf"),
    QStringLiteral("DejaVuSans.ttf"), QStringLiteral("NotoSans-Regular.ttf"),
    QStringLiteral("NotoSansArabic-Regular.ttf"), QStringLiteral("NotoNastaliqUrdu-Regular.ttf"),
    QStringLiteral("NotoSansHebrew-Regular.ttf"), QStringLiteral("NotoSansDevanagari-Regular.ttf"),
    QStringLiteral("NotoSansThai-Regular.ttf"), QStringLiteral("NotoSansCJK-Regular.ttc"),
    QStringLiteral("NotoColorEmoji.ttf")};

const QStringList families{QStringLiteral("Helvetica"), QStringLiteral("Times"),
    QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans"), QStringLiteral("Noto Sans Arabic"),
    QStringLiteral("Noto Nastaliq Urdu"), QStringLiteral("Noto Sans Devanagari"),
    QStringLiteral("Noto Sans Thai"), QStringLiteral("Noto Sans CJK JP")};

// Skin tones, flags, a keycap, a flag of tags, the longest emoji of all.
const QString emojiRow = QStringLiteral("\U0001F600\U0001F44D\U0001F3FD\U0001F1E9\U0001F1EA\U0001F1EB")
    + QStringLiteral("1\uFE0F\u20E3\U0001F3F4\U000E0067\U000E0062\U000E0065\U000E006E\U000E0067\U000E007F")
    + QStringLiteral("\U0001F469\U0001F3FD\u200D\u2764\uFE0F\u200D\U0001F48B\u200D\U0001F468\U0001F3FF");

const QStringList pieces{QStringLiteral("the"), QStringLiteral("AVATAR"), QStringLiteral("T."),
    QStringLiteral("\"Wo\","), QStringLiteral("office"), QStringLiteral("fi"), QStringLiteral("fl\u200Dx"),
    QStringLiteral("well-known"), QStringLiteral("1,234.50"), QStringLiteral("Größe"),
    QStringLiteral("e\u0301te\u0301"), u'e' + QString(31, QChar(0x301)), u'e' + QString(32, QChar(0x301)),
    QStringLiteral("ثم") + QString(100, QChar(0x64E)) + u'م', QStringLiteral("\u0301x"),
    QStringLiteral("Привет"), QStringLiteral("Γειά"), QStringLiteral("السلام"), QStringLiteral("لا"),
    QStringLiteral("عليكم،"), QStringLiteral("شلوم"), QStringLiteral("שָׁלוֹם"), QStringLiteral("किताब"),
    QStringLiteral("क्षत्रिय।"), QStringLiteral("र्\u200Dय"), QStringLiteral("ภาษาไทยง่ายมาก"),
    QStringLiteral("漢字かな交じり"), QStringLiteral("「引用」。"), QStringLiteral("한국어"),
    QStringLiteral("😀"), QStringLiteral("👩‍👩‍👧"), QStringLiteral("❤\uFE0F"),
    QStringLiteral("🇩🇪"), emojiRow, QStringLiteral("\U0001F469\u200D\U0001F692").repeated(8),
    QStringList(9, QStringLiteral("\U0001F468")).join(QChar(0x200D)), QStringLiteral("\u00AD"),
    QStringLiteral("a\u00A0b"), QStringLiteral("\t"), QStringLiteral("\u200B"), QStringLiteral("\u200F"),
    QStringLiteral("\u2028"), QStringLiteral("\u0001"), QString(QChar(0xD83D)), QString(QChar(0xFFFC)),
    QStringLiteral("—"), QStringLiteral("..."),
    QStringLiteral("averyveryverylongwordthatnocacheholdsbecauseitistoolong")};

class ShapingOracle : public QuillbayTest {
protected:
    void SetUp() override { useOnlyFonts(fontFiles); }

    static TextAttributes randomAttributes(std::mt19937 &random)
    {
        const auto oneOf = [&](int count) {
            return static_cast<int>(random() % static_cast<unsigned>(count));
        };
        TextAttributes attributes;
        if (oneOf(8) != 0) {
            FontAttributes font;
            font.family = families[oneOf(static_cast<int>(families.size()))];
            font.pointSize = 6 + oneOf(30);
            font.weight = oneOf(2) ? 400 : 700;
            font.slant = oneOf(4) ? FontSlant::Upright : FontSlant::Italic;
            font.tracking = oneOf(6) ? 0 : 1.5;
            attributes.font = font;
        }
        return attributes;
    }

    static AttributedString randomText(std::mt19937 &random)
    {
        AttributedStringBuilder builder;
        while (builder.length() < 3000) {
            const TextAttributes attributes = randomAttributes(random);
            for (auto count = 1 + random() % 60; count > 0; --count) {
                builder.append(pieces[static_cast<qsizetype>(random() % static_cast<size_t>(pieces.size()))],
                    attributes);
                if (random() % 8 != 0)
                    builder.append(random() % 12 ? u" " : u"   ", attributes);
                if (random() % 100 == 0)
                    builder.append(u"\n", attributes);
            }
        }
        return builder.build();
    }

    static std::vector<LineFragment> linesOf(LayoutEngine &engine, const AttributedString &text, double width)
    {
        std::vector<LineFragment> lines;
        forEachParagraph(text.string(), [&](const Paragraph &paragraph) {
            engine.layOutParagraph(
                text, paragraph, width, [&](const LineFragment &line) { lines.push_back(line); });
        });
        return lines;
    }
};

TEST_F(ShapingOracle, GivesTheSameLinesWordByWordAsInWholeRuns)
{
    std::mt19937 random(20);
    LayoutEngine byWords(LayoutEngine::Shaping::ByWords);
    LayoutEngine wholeRuns(LayoutEngine::Shaping::WholeRuns);
    for (int round = 0; round < 40; ++round) {
        const AttributedString text = randomText(random);
        for (const double width : {0.0, 60.0, 250.0, 451.0, 3000.0}) {
            const std::vector<LineFragment> quick = linesOf(byWords, text, width);
            const std::vector<LineFragment> plain = linesOf(wholeRuns, text, width);
            ASSERT_EQ(quick.size(), plain.size());
            for (size_t i = 0; i < quick.size(); ++i) {
                ASSERT_EQ(quick[i].start, plain[i].start) << "at " << width << " points, round " << round;
                ASSERT_NEAR(quick[i].width, plain[i].width, 1e-6)
                    << text.string().mid(plain[i].start, plain[i].length).toStdString();
                ASSERT_EQ(quick[i].height, plain[i].height);
            }
            ASSERT_EQ(byWords.countLines(text, width), plain.size());
        }
    }
}

// Rules across spaces, like those of Urdu's Nastaliq script, only affect words of the same script.
TEST_F(ShapingOracle, GivesTheSameLinesForWordsOfOneScript)
{
    const QStringList words[]{
        QStringLiteral("یہ ہے کی کے اور میں سے نہیں ایک پر تھا ہو کر آپ ہم وہ گئے بچے چلے آئے").split(u' '),
        QStringLiteral("في من على السلام لا الله كتاب ّ ً مدينة هذا آخر").split(u' '),
        QStringLiteral("To AV. We Ye y, fi office \"T A\" r. P. L' f f) (W 11 1. V").split(u' '),
        QStringLiteral("के है। और क्षत्रिय र् ि में ऑफ़ श्री द्ध").split(u' '),
    };
    std::mt19937 random(23);
    LayoutEngine byWords(LayoutEngine::Shaping::ByWords);
    LayoutEngine wholeRuns(LayoutEngine::Shaping::WholeRuns);
    for (const QString &family : families) {
        for (const QStringList &vocabulary : words) {
            QString text;
            while (text.size() < 3000) {
                text += vocabulary[static_cast<qsizetype>(random() % static_cast<size_t>(vocabulary.size()))];
                text += random() % 10 ? QStringLiteral(" ") : QStringLiteral("  ");
            }
            TextAttributes attributes;
            attributes.font = FontAttributes{.family = family};
            const AttributedString styled(text, attributes);
            const std::vector<LineFragment> quick = linesOf(byWords, styled, 250);
            const std::vector<LineFragment> plain = linesOf(wholeRuns, styled, 250);
            ASSERT_EQ(quick.size(), plain.size()) << family.toStdString();
            for (size_t i = 0; i < quick.size(); ++i) {
                ASSERT_EQ(quick[i].start, plain[i].start) << family.toStdString();
                ASSERT_NEAR(quick[i].width, plain[i].width, 1e-6) << family.toStdString();
            }
        }
    }
}

// Of Thai and Lao, clusters are measured two by two.
TEST_F(ShapingOracle, GivesTheSameLinesForLettersWithMarksInAnyOrder)
{
    useOnlyFonts({QStringLiteral("NimbusSans-Regular.otf"), QStringLiteral("NotoSansThai-Regular.ttf"),
        QStringLiteral("NotoSerifThai-Regular.ttf"), QStringLiteral("NotoLoopedThai-Regular.ttf"),
        QStringLiteral("NotoSansLao-Regular.ttf"), QStringLiteral("NotoSerifLao-Regular.ttf"),
        QStringLiteral("NotoLoopedLao-Regular.ttf")});
    const QString words = QStringLiteral("ที่และในของเป็นการมีไม่ได้ให้คนบ้านเมืองแม่น้ำวันคืนใหญ่ประเทศฤๅษีฎุฐุปั้ญู");
    std::mt19937 random(24);
    LayoutEngine byWords(LayoutEngine::Shaping::ByWords);
    LayoutEngine wholeRuns(LayoutEngine::Shaping::WholeRuns);
    for (const char *family : {"Helvetica", "Noto Sans Thai", "Noto Serif Thai", "Noto Looped Thai",
             "Noto Sans Lao", "Noto Serif Lao", "Noto Looped Lao"}) {
        for (const int block : {0x0E00, 0x0E80}) {
            QString text;
            while (text.size() < 2500) {
                const auto start = static_cast<qsizetype>(random() % static_cast<size_t>(words.size() - 12));
                const QString piece = words.mid(start, static_cast<qsizetype>(random() % 12));
                for (const QChar unit : piece)
                    text += QChar(static_cast<char16_t>(unit.unicode() % 0x80 + block));
                if (random() % 3 == 0)
                    text += QChar(static_cast<char16_t>(block + static_cast<int>(random() % 0x60)));
                if (random() % 30 == 0)
                    text +=
                        QStringLiteral(" .1“(\u200B\u0301\u00AD").at(static_cast<qsizetype>(random() % 8));
            }
            TextAttributes attributes;
            attributes.font = FontAttributes{.family = QString::fromLatin1(family)};
            const AttributedString styled(text, attributes);
            for (const double width : {40.0, 251.0}) {
                const std::vector<LineFragment> quick = linesOf(byWords, styled, width);
                const std::vector<LineFragment> plain = linesOf(wholeRuns, styled, width);
                ASSERT_EQ(quick.size(), plain.size()) << family << ' ' << block;
                for (size_t i = 0; i < quick.size(); ++i) {
                    ASSERT_EQ(quick[i].start, plain[i].start) << family << ' ' << block;
                    ASSERT_NEAR(quick[i].width, plain[i].width, 1e-6) << family << ' ' << block;
                }
            }
        }
    }
}

TEST_F(ShapingOracle, GivesTheSameLinesFromAnEngineThatHasSeenOtherTexts)
{
    std::mt19937 random(21);
    LayoutEngine experienced;
    for (int round = 0; round < 20; ++round)
        (void)experienced.countLines(randomText(random), 300);
    const AttributedString text = randomText(random);
    LayoutEngine fresh;
    EXPECT_EQ(experienced.countLines(text, 300), fresh.countLines(text, 300));
}

TEST_F(ShapingOracle, SumsUpParagraphsInAnyOrder)
{
    std::mt19937 random(22);
    const AttributedString text = randomText(random);
    std::vector<Paragraph> paragraphs;
    forEachParagraph(text.string(), [&](const Paragraph &paragraph) { paragraphs.push_back(paragraph); });
    std::shuffle(paragraphs.begin(), paragraphs.end(), random);
    LayoutEngine engine;
    quint64 sum = 0;
    for (const Paragraph &paragraph : paragraphs)
        sum += engine.countLinesOfParagraph(text, paragraph, 300);
    EXPECT_EQ(sum, LayoutEngine().countLines(text, 300));
}

} // namespace
