// SPDX-License-Identifier: MIT
// Text in any encoding, with control characters of any program that writes text, is text.
#include "documents/reading/TextBytes.h"
#include "documents/reading/KindDetection.h"
#include "tests/documents/SampleTexts.h"
#include "tests/harness/QuillbayTest.h"

#include <QDirIterator>
#include <QFile>

namespace {

bool isText(const QByteArray &bytes)
{
    const Result<DocumentKind, DocumentError> kind = kindOfDocument({}, bytes);
    return kind && kind.value() == DocumentKind::PlainText;
}

const QByteArray longText = QByteArray("The harbour was quiet before the ferry came. ").repeated(200);

class TextBytesTest : public QuillbayTest { };

} // namespace

TEST(TextBytes, TextIsTextInEveryEncoding)
{
    using namespace SampleTexts;
    for (const QString &text : {english, french, german, spanish, italian, portuguese, swedish, polish, czech,
             turkish, greek, russian, ukrainian, hebrew, arabic, hindi, japanese, simplifiedChinese,
             traditionalChinese, korean}) {
        for (const char *encoding : {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"})
            EXPECT_TRUE(isText(encodeText(text, encoding))) << encoding << ' ' << text.toStdString();
        const QString marked = QChar(QChar::ByteOrderMark) + text;
        for (const char *encoding : {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"})
            EXPECT_EQ(textEvidence(encodeText(marked, encoding)), TextEvidence::Clear) << encoding;
    }
    const std::vector<std::pair<QString, std::vector<const char *>>> legacy{
        {german, {"windows-1252", "ISO-8859-15", "IBM850", "macintosh"}},
        {polish, {"windows-1250", "ISO-8859-2", "IBM852"}},
        {russian, {"windows-1251", "KOI8-R", "IBM866", "ISO-8859-5", "x-mac-cyrillic"}},
        {greek, {"windows-1253", "ISO-8859-7"}},
        {hebrew, {"windows-1255", "ISO-8859-8"}},
        {arabic, {"windows-1256", "ISO-8859-6"}},
        {japanese, {"Shift_JIS", "EUC-JP", "ISO-2022-JP"}},
        {simplifiedChinese, {"GBK", "GB18030", "HZ", "ISO-2022-CN"}},
        {traditionalChinese, {"Big5", "EUC-TW"}},
        {korean, {"EUC-KR", "ISO-2022-KR"}},
    };
    for (const auto &[text, encodings] : legacy) {
        for (const char *encoding : encodings)
            EXPECT_TRUE(isText(encodeText(text, encoding))) << encoding;
    }
}

TEST(TextBytes, ControlCharactersOfProgramsThatWriteTextAreText)
{
    EXPECT_TRUE(isText("one\ftwo\vthree\a\x7F"));
    EXPECT_TRUE(isText("N\bNA\bAM\bME\bE\n       ls - list")); // a manual page for a printer
    EXPECT_TRUE(isText("the end" + QByteArray(100, '\x1A'))); // of a DOS file
    EXPECT_TRUE(isText(QByteArray("\x1B[31mred\x1B[0m\x1B]0;title\a$ ls\r\n").repeated(50)));
    EXPECT_TRUE(isText(QByteArray("<Ann>\003"
                                  "4,1red\017 and \002"
                                  "loud\002\n")
                           .repeated(50))); // a chat
    EXPECT_TRUE(isText("\x1F\nFile: dir,\tNode: Top\n\x1F\nFile: more\n")); // a manual of GNU
    EXPECT_TRUE(isText("field\037field\036record")); // separators of ASCII
}

TEST(TextBytes, AStrayNulIsText)
{
    EXPECT_TRUE(isText(QByteArray("one\0two", 7)));
    EXPECT_TRUE(isText(longText + QByteArray("\0\0\0", 3) + longText));
    EXPECT_TRUE(isText(QByteArray("caf\xE9\0", 5) + longText));
    EXPECT_FALSE(isText(longText + QByteArray(longText.size(), '\0')));
}

TEST(TextBytes, ACharacterCutOffAtTheEndIsText)
{
    const QByteArray utf16 = SampleTexts::encodeText(SampleTexts::russian, "UTF-16LE");
    EXPECT_TRUE(isText("\xFF\xFE" + utf16.chopped(1)));
    EXPECT_TRUE(isText("\xFF\xFEO"));
    EXPECT_TRUE(isText(SampleTexts::japanese.toUtf8().chopped(1)));
}

TEST_F(TextBytesTest, DocumentsOfOtherProjectsAreOfTheKindsThatTheyWereWrittenIn)
{
    if (corporaFolder().isEmpty())
        GTEST_SKIP() << "QUILLBAY_CORPORA names no folder";
    const QMap<QString, DocumentKind> kinds{{QStringLiteral("docx"), DocumentKind::WordDocument},
        {QStringLiteral("rtf"), DocumentKind::Rtf}, {QStringLiteral("txt"), DocumentKind::PlainText},
        {QStringLiteral("md"), DocumentKind::PlainText}, {QStringLiteral("xml"), DocumentKind::PlainText},
        {QStringLiteral("flat-rtfd"), DocumentKind::Rtfd}};
    for (QDirIterator files(corporaFolder(), QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        const QString suffix = QFileInfo(file).suffix();
        const bool isRefused = suffix == u"png" || suffix == u"zip";
        const Result<DocumentKind, DocumentError> unnamed = kindOfDocument({}, bytes);
        EXPECT_EQ(unnamed.hasValue(), !isRefused) << file.fileName().toStdString();
        if (unnamed && kinds.contains(suffix)) {
            EXPECT_EQ(unnamed.value(), kinds[suffix]) << file.fileName().toStdString();
        }
    }
}
