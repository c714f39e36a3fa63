// SPDX-License-Identifier: MIT
#include "platform/text_encoding/UnmarkedUnicode.h"

#include "tests/documents/SampleTexts.h"
#include "tests/harness/QuillbayTest.h"

using namespace SampleTexts;

namespace {

const char *const encodings[] = {"UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"};

const QString *const texts[] = {&english, &french, &german, &spanish, &polish, &turkish, &greek, &russian,
    &hebrew, &arabic, &hindi, &japanese, &simplifiedChinese, &traditionalChinese, &korean};

QByteArray detectEncoding(const QByteArray &bytes)
{
    const char *name = unmarkedUnicodeEncoding(bytes);
    return name ? name : "none";
}

} // namespace

TEST(UnmarkedUnicode, EveryLanguageIsFoundInEveryByteOrder)
{
    for (const QString *text : texts) {
        for (const char *encoding : encodings)
            EXPECT_EQ(detectEncoding(encodeText(*text, encoding)), encoding) << text->toStdString();
    }
}

TEST(UnmarkedUnicode, EveryFirstLineIsFoundInEveryByteOrder)
{
    for (const QString *text : texts) {
        const QString line = text->section(u'\n', 0, 0);
        for (const char *encoding : encodings)
            EXPECT_EQ(detectEncoding(encodeText(line, encoding)), encoding) << line.toStdString();
    }
}

TEST(UnmarkedUnicode, AlphabetsAndIdeographsMayBeMixed)
{
    const QString mixed = english + simplifiedChinese + russian + japanese + QStringLiteral("😀 2008年。");
    for (const char *encoding : encodings)
        EXPECT_EQ(detectEncoding(encodeText(mixed, encoding)), encoding);
}

TEST(UnmarkedUnicode, ChineseWithoutSpacesOrLineEndsIsFoundByItsPunctuation)
{
    const QString text = QString(simplifiedChinese).remove(u'\n');
    for (const char *encoding : encodings)
        EXPECT_EQ(detectEncoding(encodeText(text, encoding)), encoding);
}

TEST(UnmarkedUnicode, ChineseWithoutPunctuationIsFoundByItsLineEnds)
{
    const QString text = QStringLiteral("昨天晚上\n我们沿着河边散步\n天已经黑了\n但是月亮很亮\n");
    for (const char *encoding : encodings)
        EXPECT_EQ(detectEncoding(encodeText(text, encoding)), encoding);
}

TEST(UnmarkedUnicode, OneWordInAnAlphabetIsFound)
{
    for (const char *word : {"hello", "Grüße", "Привет", "Ελλάδα", "שלום"}) {
        for (const char *encoding : encodings)
            EXPECT_EQ(detectEncoding(encodeText(QString::fromUtf8(word), encoding)), encoding) << word;
    }
}

TEST(UnmarkedUnicode, AnIncompleteLastCodeUnitDoesNotMatter)
{
    for (const char *encoding : encodings)
        EXPECT_EQ(detectEncoding(encodeText(german, encoding).chopped(1)), encoding);
}

TEST(UnmarkedUnicode, AFewBrokenCharactersDoNotMatter)
{
    const QByteArray halfPair = QByteArray("\xD8\0", 2);
    EXPECT_EQ(
        detectEncoding(encodeText(korean, "UTF-16BE") + halfPair + halfPair + encodeText(german, "UTF-16BE")),
        "UTF-16BE");
    const QByteArray noCharacter("\0\0\xD8\0", 4);
    EXPECT_EQ(detectEncoding(encodeText(korean, "UTF-32BE") + noCharacter + encodeText(german, "UTF-32BE")),
        "UTF-32BE");
}

TEST(UnmarkedUnicode, CharactersOutsideTheFirstPlaneAreFound)
{
    const QString text = QStringLiteral("😀😀 😀😀😀，𠀀𠀁𠀂。\n").repeated(5);
    for (const char *encoding : encodings)
        EXPECT_EQ(detectEncoding(encodeText(text, encoding)), encoding);
}

TEST(UnmarkedUnicode, TheByteOrderIsTheOneWithTheMoreProbableText)
{
    // In the other byte order, these characters are letters too.
    const QString text = QStringLiteral("АБВГД ЕЖЗИЙ КЛМНОП\n");
    for (const char *encoding : encodings)
        EXPECT_EQ(detectEncoding(encodeText(text, encoding)), encoding);
}

TEST(UnmarkedUnicode, NoTextInUtf8IsTakenForIt)
{
    for (const QString *text : texts)
        EXPECT_EQ(detectEncoding(text->toUtf8()), "none") << text->toStdString();
}

TEST(UnmarkedUnicode, StrayNulsDoNotMakeIt)
{
    for (const QString *text : texts) {
        // At every position, so that the NUL also stands next to spaces and line ends.
        const QByteArray bytes = text->toUtf8();
        for (qsizetype at = 0; at <= bytes.size(); ++at)
            EXPECT_EQ(detectEncoding(QByteArray(bytes).insert(at, '\0')), "none")
                << at << ' ' << text->toStdString();
    }
    EXPECT_EQ(detectEncoding(QByteArray("ends in NUL\0", 12)), "none");
    EXPECT_EQ(detectEncoding(QByteArray("x\0y", 3)), "none");
    EXPECT_EQ(detectEncoding(QByteArray("abc\0", 4)), "none");
}

TEST(UnmarkedUnicode, ALegacyTextWithStrayNulsIsNotIt)
{
    for (qsizetype at = 0; at < french.size(); ++at) {
        QByteArray bytes = encodeText(french, "windows-1252");
        bytes.insert(at, QByteArray(4, '\0'));
        EXPECT_EQ(detectEncoding(bytes), "none") << at;
    }
}

TEST(UnmarkedUnicode, ALegacyTextWithNulsAtItsSpacesIsNotIt)
{
    const QByteArray bytes = encodeText(french, "windows-1252");
    EXPECT_EQ(detectEncoding(QByteArray(bytes).replace(" ", QByteArray(" \0", 2))), "none");
    EXPECT_EQ(detectEncoding(QByteArray(bytes).replace(" ", QByteArray("\0 ", 2))), "none");
}

TEST(UnmarkedUnicode, LegacyRecordsThatEndInNulAreNotIt)
{
    const QByteArray record("abcdefg\0", 8);
    EXPECT_EQ(detectEncoding(record.repeated(100) + QByteArray("\xE9\0", 2)), "none");
    EXPECT_EQ(detectEncoding(record.repeated(100) + QByteArray("x\xE9", 2)), "none");
}

TEST(UnmarkedUnicode, NamesThatEndInNulAreNotIt)
{
    // The output of programs that list files separated by NUL.
    EXPECT_EQ(detectEncoding(QByteArray("./one.txt\0./two.txt\0./caf\xC3\xA9.txt\0./folder/three.txt\0", 52)),
        "none");
    EXPECT_EQ(detectEncoding(QByteArray("abcdefg\0", 8).repeated(100)), "none");
}

TEST(UnmarkedUnicode, AColumnOfDigitsIsNotIt)
{
    EXPECT_EQ(detectEncoding(QByteArray("1\n2\n3\n").repeated(100)), "none");
    EXPECT_EQ(detectEncoding(QByteArray("1\t2\t3\n").repeated(100)), "none");
}

TEST(UnmarkedUnicode, NulsAloneAreNotIt)
{
    for (const qsizetype length : {1, 2, 3, 4, 8, 100, 100'000})
        EXPECT_EQ(detectEncoding(QByteArray(length, '\0')), "none") << length;
    EXPECT_EQ(detectEncoding({}), "none");
}
