// SPDX-License-Identifier: MIT
#include "documents/loading/PasteboardText.h"
#include "documents/rtfd/RtfdWriter.h"
#include "platform/pasteboard/Pasteboard.h"
#include "tests/harness/QuillbayTest.h"

namespace {

QByteArray flatRtfdOf(const QString &text)
{
    const AttributedString styled(text);
    const Result<QByteArray, DocumentError> bytes = RTFDFromRange(styled, 0, styled.length());
    EXPECT_TRUE(bytes.hasValue());
    return bytes ? bytes.value() : QByteArray();
}

const QByteArray richText = R"({\rtf1\ansi rich})";
const QByteArray html = "<p>page</p>";
const QByteArray plain = "plain";

/// What is read; "nothing" where nothing can be.
QString textIn(const Pasteboard::Forms &forms)
{
    const std::optional<AttributedString> text = readAttributedString(Pasteboard(forms));
    return text ? text->string() : QStringLiteral("nothing");
}

} // namespace

TEST(PasteboardText, IsThatOfTheRichestForm)
{
    Pasteboard::Forms forms{{QStringLiteral("application/x-flat-rtfd"), flatRtfdOf(QStringLiteral("flat"))},
        {QStringLiteral("text/rtf"), richText}, {QStringLiteral("text/html"), html},
        {QStringLiteral("text/plain"), plain}};
    for (const auto &[type, text] :
        {std::pair("application/x-flat-rtfd", "flat"), std::pair("text/rtf", "rich"),
            std::pair("text/html", "page"), std::pair("text/plain", "plain")}) {
        EXPECT_EQ(textIn(forms).toStdString(), text);
        forms.erase(QString::fromLatin1(type));
    }
    EXPECT_FALSE(readAttributedString(Pasteboard(forms)));
}

TEST(PasteboardText, IsReadUnderEveryNameOfRtf)
{
    for (const char *const type :
        {"text/rtf", "application/rtf", "text/richtext", "TEXT/RTF", "text/rtf; x=y"})
        EXPECT_EQ(textIn({{QString::fromLatin1(type), richText}}), QStringLiteral("rich")) << type;
}

TEST(PasteboardText, KeepsTheStyleOfRichForms)
{
    const Pasteboard pasteboard({{QStringLiteral("text/rtf"), R"({\rtf1\ansi\fs48 large})"}});
    const std::optional<AttributedString> text = readAttributedString(pasteboard);
    ASSERT_TRUE(text);
    const std::optional<FontAttributes> font = text->attributesAt(0).font;
    ASSERT_TRUE(font);
    EXPECT_EQ(font->pointSize, 24);
}

TEST(PasteboardText, TakesTheNextFormWhereARicherOneIsDamaged)
{
    EXPECT_EQ(textIn({{QStringLiteral("application/x-flat-rtfd"), "rtfd cut short"},
                  {QStringLiteral("text/rtf"), "no RTF"}, {QStringLiteral("text/plain"), plain}}),
        QStringLiteral("plain"));
}

TEST(PasteboardText, IsDecodedAsItsCharsetSays)
{
    const auto read = [](const char *type, const QByteArray &bytes) {
        return textIn({{QString::fromLatin1(type), bytes}});
    };
    EXPECT_EQ(read("text/plain;charset=utf-8", "caf\xC3\xA9"), QStringLiteral("café"));
    EXPECT_EQ(read("text/plain;charset=ISO-8859-15", "5 \xA4"), QStringLiteral("5 €"));
    EXPECT_EQ(read("text/plain; charset=\"koi8-r\"", "\xC4\xC1"), QStringLiteral("да"));
    EXPECT_EQ(read("text/plain;charset=utf-16le", QByteArray("a\0b\0", 4)), QStringLiteral("ab"));
    EXPECT_EQ(read("text/html;charset=windows-1251", "<p>\xE4\xE0"), QStringLiteral("да"));
}

TEST(PasteboardText, TheCharsetMayBeWrittenInAnyWay)
{
    for (const char *type : {"text/plain;charset=KOI8-R", "TEXT/PLAIN;CHARSET=koi8-r",
             "text/plain; charset='koi8-r'", "text/plain ; Charset = \"KOI8-R\" ; x=y",
             "text/plain;x=\"a;charset=utf-16\";charset=koi8-r", "text/plain;charset=\" koi8_r \"",
             "text/plain;charset=koi", "text/plain;charset=\"koi8\\-r\"", "text/plain;;charset=koi8-r"})
        EXPECT_EQ(textIn({{QString::fromLatin1(type), "\xC4\xC1"}}), QStringLiteral("да")) << type;
}

// ICU knows them, and makes more code units of some than they have bytes.
TEST(PasteboardText, ACharsetThatIsNotListedIsNoReasonToFail)
{
    for (const char *charset :
        {"BOCU-1", "SCSU", "UTF-7", "CESU-8", "IMAP-mailbox-name", "x11-compound-text", "ISCII,version=0",
            "LMBCS-1", "ibm-930", "UTF-16,version=1", "utf-8\n", "\"", "'", "\\", "%s%n"}) {
        const QString type = QStringLiteral("text/plain;charset=") + QString::fromLatin1(charset);
        EXPECT_EQ(textIn({{type, QByteArray("words ").repeated(17)}}), QStringLiteral("words ").repeated(17))
            << charset;
        QByteArray bytes;
        for (int i = 0; i < 102; ++i)
            bytes.append(static_cast<char>(0xFF - i));
        EXPECT_TRUE(readAttributedString(Pasteboard({{type, bytes}}))) << charset;
    }
}

TEST(PasteboardText, PrefersAFormWhoseCharsetIsKnown)
{
    EXPECT_EQ(textIn({{QStringLiteral("text/plain;charset=bocu-1"), "?"},
                  {QStringLiteral("text/plain;charset=utf-8"), "é"}}),
        QStringLiteral("é"));
}

TEST(PasteboardText, Utf8ThatIsNamedFalselyDoesNotCount)
{
    EXPECT_EQ(textIn({{QStringLiteral("text/plain;charset=utf-8"), "\xCF\xF0\xE8\xE2\xE5\xF2"}}),
        QStringLiteral("Привет"));
}

TEST(PasteboardText, BelievesAByteOrderMarkOverTheCharset)
{
    EXPECT_EQ(textIn({{QStringLiteral("text/plain;charset=iso-8859-1"), "\xEF\xBB\xBF\xC3\xA9"}}),
        QStringLiteral("é"));
}

TEST(PasteboardText, IsDetectedWhereTheCharsetIsUnknown)
{
    EXPECT_EQ(
        textIn({{QStringLiteral("text/plain;charset=no-such"), "caf\xC3\xA9"}}), QStringLiteral("café"));
}

TEST(PasteboardText, PrefersAFormThatNamesItsCharset)
{
    EXPECT_EQ(
        textIn({{QStringLiteral("text/plain"), "?"}, {QStringLiteral("text/plain;charset=utf-8"), "é"}}),
        QStringLiteral("é"));
}

TEST(PasteboardText, MayBeEmpty)
{
    const Pasteboard pasteboard({{QStringLiteral("text/plain"), ""}});
    const std::optional<AttributedString> text = readAttributedString(pasteboard);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->length(), 0);
}

TEST(PasteboardText, IsAbsentWithoutAFormThatIsText)
{
    EXPECT_FALSE(readAttributedString(Pasteboard()));
    EXPECT_FALSE(readAttributedString(Pasteboard({{QStringLiteral("image/png"), "\x89PNG"}})));
    EXPECT_FALSE(readAttributedString(Pasteboard({{QString(), "text"}})));
}
