// SPDX-License-Identifier: MIT
// Characters, ranges and attachments are written as docs/rtf.md describes.
#include "tests/documents/rtf/writer/WrittenRtf.h"
#include "tests/harness/QuillbayTest.h"

using namespace WrittenRtf;

namespace {

/// The RTF between the words of plain text and the closing brace.
QByteArray charactersOf(const QString &text)
{
    const QByteArray before = start + "\\pard\\plain ";
    const QByteArray rtf = rtfOf(AttributedString(text));
    EXPECT_TRUE(rtf.startsWith(before) && rtf.endsWith('}')) << rtf.constData();
    return rtf.sliced(before.size()).chopped(1);
}

TextAttributes withAttachment(const QString &name)
{
    TextAttributes attributes;
    attributes.attachment = std::make_shared<const Attachment>(Attachment{name, "data"});
    return attributes;
}

} // namespace

TEST(RtfWriter, AnEmptyTextIsAnEmptyDocument)
{
    EXPECT_EQ(rtfOf({}), start + "}");
}

TEST(RtfWriter, PrintableAsciiIsWrittenLiterallyExceptBackslashAndBraces)
{
    QString text;
    for (char16_t character = 0x20; character < 0x7F; ++character)
        text += QChar(character);
    QByteArray expected = text.toLatin1();
    expected.replace("\\", "\\\\").replace("{", "\\{").replace("}", "\\}");
    EXPECT_EQ(charactersOf(text), expected);
}

TEST(RtfWriter, LineEndsAndTabulatorsAreWords)
{
    EXPECT_EQ(charactersOf(QStringLiteral("a\n\nb\tc")), "a\\par\n\\par\nb\\tab c");
}

TEST(RtfWriter, ACharacterIsEscapedWhereverItStands)
{
    const std::pair<QChar, QByteArray> escapes[] = {{u'\\', "\\\\"}, {u'}', "\\}"}, {u'\n', "\\par\n"},
        {u'\t', "\\tab "}, {u'\x7F', "\\u127 "}, {u'\u0141', "\\u321 "}, {u'\u8041', "\\u-32703 "}};
    for (const auto &[character, escape] : escapes) {
        for (qsizetype before = 0; before < 20; ++before) {
            const QString text = QString(before, u'a') + character + character + QString(19 - before, u'b');
            EXPECT_EQ(
                charactersOf(text), QByteArray(before, 'a') + escape + escape + QByteArray(19 - before, 'b'));
        }
    }
}

TEST(RtfWriter, ALongTextOfTheLongestEscapes)
{
    constexpr qsizetype length = 100'000;
    EXPECT_EQ(charactersOf(QString(length, u'\u8000')), QByteArray("\\u-32768 ").repeated(length));
}

TEST(RtfWriter, EveryOtherCodeUnitIsASignedNumber)
{
    EXPECT_EQ(charactersOf(QStringLiteral("\u00E9\u0436\u2028\uFFFC")), "\\u233 \\u1078 \\u8232 \\u-4 ");
    const char16_t odd[] = {0, 1, 0x0C, 0x0D, 0x7F, 0x80, 0x7FFF, 0x8000, 0xD800, 0xFFFE, 0xFFFF};
    EXPECT_EQ(charactersOf(QString::fromUtf16(odd, std::size(odd))),
        "\\u0 \\u1 \\u12 \\u13 \\u127 \\u128 \\u32767 \\u-32768 \\u-10240 \\u-2 \\u-1 ");
    EXPECT_EQ(charactersOf(QString::fromUcs4(U"\U0001F600")), "\\u-10179 \\u-8704 ");
}

TEST(RtfWriter, WordsAreWrittenOnlyWhereSomethingChanges)
{
    const TextAttributes plain = withFont(serif());
    const TextAttributes large = withFont(serif(24));
    TextAttributes indented = plain;
    indented.paragraphStyle.headIndent = 20;
    AttributedStringBuilder builder;
    builder.append(u"a", plain);
    builder.append(u"b", large);
    builder.append(u"c\n", plain);
    builder.append(u"d", indented);
    EXPECT_EQ(rtfOf(builder.build()),
        start + serifTable
            + "\\pard\\plain\\f0\\fs24 a\\plain\\f0\\fs48 b\\plain\\f0\\fs24 c\\par\n"
              "\\pard\\li400\\fi-400 d}");
}

TEST(RtfWriter, AnAttachmentIsAGroupWithItsStoredName)
{
    const AttributedString text(QStringLiteral("\uFFFC"), withAttachment(QStringLiteral("a b.png")));
    EXPECT_EQ(rtfOf(text, [](const Attachment &attachment) { return attachment.fileName; }),
        start + "\\pard\\plain {{\\NeXTGraphic a b.png \\width0 \\height0}\\'ac}}");
}

TEST(RtfWriter, AnAttachmentThatIsStoredUnderAnotherNameKeepsItsOwn)
{
    const AttributedString text(QStringLiteral("\uFFFC"), withAttachment(QStringLiteral("../\n;\u00E9")));
    EXPECT_EQ(rtfOf(text, [](const Attachment &) { return QStringLiteral("\u00FC"); }),
        start
            + "{\\*\\qbyexact\n{\\qbyfile1 ../\\u10 \\u59 \\u233 }}\n"
              "\\pard\\plain {{\\NeXTGraphic \\u252  \\width0 \\height0\\qbyfile1}\\'ac}}");
}

TEST(RtfWriter, AnAttachmentThatIsNotStoredLeavesItsCharacter)
{
    const AttributedString text(QStringLiteral("\uFFFC"), withAttachment(QStringLiteral("a")));
    EXPECT_EQ(rtfOf(text), start + "\\pard\\plain \\u-4 }");
    EXPECT_EQ(rtfOf(text, [](const Attachment &) { return std::nullopt; }), start + "\\pard\\plain \\u-4 }");
}

TEST(RtfWriter, AnAttachmentOnAnotherCharacterIsLeftOut)
{
    const AttributedString text(QStringLiteral("ab"), withAttachment(QStringLiteral("a")));
    int questions = 0;
    EXPECT_EQ(rtfOf(text,
                  [&](const Attachment &) {
                      ++questions;
                      return QStringLiteral("a");
                  }),
        start + "\\pard\\plain ab}");
    EXPECT_EQ(questions, 0);
}

TEST(RtfWriter, TheNameOfAnAttachmentIsRequestedOnce)
{
    AttributedStringBuilder builder;
    const TextAttributes attributes = withAttachment(QStringLiteral("a"));
    builder.append(u"x", attributes);
    builder.append(u"\uFFFC-\uFFFC", attributes);
    builder.append(u"y", {});
    builder.append(u"\uFFFC", attributes);
    int questions = 0;
    const QByteArray rtf = rtfOf(builder.build(), [&](const Attachment &attachment) {
        ++questions;
        return attachment.fileName;
    });
    EXPECT_EQ(questions, 1);
    EXPECT_EQ(rtf.count("NeXTGraphic"), 3);
}

TEST(RtfWriter, ARangeIsWrittenWithoutItsSurroundings)
{
    AttributedStringBuilder builder;
    FontAttributes sans = serif(9.1);
    sans.family = QStringLiteral("Sans");
    builder.append(u"before", withFont(sans));
    builder.append(u"abc", withFont(serif()));
    builder.append(u"def", withFont(serif(24)));
    builder.append(u"\uFFFC", withAttachment(QStringLiteral("a")));
    const AttributedString text = builder.build();
    const auto mustNotAsk = [](const Attachment &attachment) {
        ADD_FAILURE();
        return attachment.fileName;
    };
    EXPECT_EQ(writeRtf(text, 7, 3, mustNotAsk).value(),
        start + serifTable + "\\pard\\plain\\f0\\fs24 bc\\plain\\f0\\fs48 d}");
    EXPECT_EQ(writeRtf(text, 6, 0).value(), start + "}");
    EXPECT_EQ(writeRtf(text, text.length(), 5).value(), start + "}");
}

TEST(RtfWriter, ARangeIsClampedToTheText)
{
    const AttributedString text(QStringLiteral("abc"));
    EXPECT_EQ(writeRtf(text, 1, 100).value(), start + "\\pard\\plain bc}");
    EXPECT_EQ(writeRtf(text, 1, std::numeric_limits<qsizetype>::max()).value(), start + "\\pard\\plain bc}");
    EXPECT_EQ(writeRtf(text, 100, 1).value(), start + "}");
    EXPECT_EQ(writeRtf(text, std::numeric_limits<qsizetype>::max(), 1).value(), start + "}");
    EXPECT_EQ(writeRtf({}, 0, 1).value(), start + "}");
}
