// SPDX-License-Identifier: MIT
#include "documents/rtfd/RtfdWriter.h"

#include "tests/documents/rtfd/FlatBytes.h"
#include "tests/harness/QuillbayTest.h"

#include <vector>

using namespace FlatBytes;

namespace {

TextAttributes withAttachment(const QString &name, const QByteArray &contents = "data")
{
    TextAttributes attributes;
    attributes.attachment = std::make_shared<const Attachment>(Attachment{name, contents});
    return attributes;
}

const QString anchor = QStringLiteral("\uFFFC");

QByteArray rtfOf(const AttributedString &text)
{
    return writeRtf(text, 0, text.length(), [](const Attachment &attachment) {
        return attachment.fileName;
    }).value();
}

QByteArray datesOf(std::initializer_list<QByteArray> names)
{
    QByteArray dates = word(1);
    for (const QByteArray &name : names)
        dates += withLength(name) + word(16) + word(0) + word(0644) + word(0) + word(0);
    return dates;
}

QByteArray flatOf(const AttributedString &text)
{
    return RTFDFromRange(text, 0, text.length()).value();
}

/// The names under which the files of attachments with these names lie, in that order.
QList<QByteArray> storedNames(const QStringList &names)
{
    AttributedStringBuilder builder;
    for (const QString &name : names) // distinct, although some are equal
        builder.append(anchor, withAttachment(name, QByteArray::number(builder.length())));
    const QByteArray bytes = flatOf(builder.build());
    QList<QByteArray> stored;
    qsizetype at = 16;
    for (qsizetype i = 0; i < names.size() + 1; ++i) {
        const auto length = static_cast<unsigned char>(bytes[at]); // of at most 255 bytes
        stored.append(bytes.sliced(at + 4, length));
        at += 4 + length;
    }
    EXPECT_EQ(stored.takeFirst(), "TXT.rtf");
    return stored;
}

} // namespace

TEST(RtfdWriter, AnEmptyTextIsAnEmptyDocument)
{
    EXPECT_EQ(flatOf({}), rtfd({{"TXT.rtf", file(rtfOf({}))}, {".", file(datesOf({"TXT.rtf"}))}}));
}

TEST(RtfdWriter, TheFilesFollowTheTextInItsOrder)
{
    AttributedStringBuilder builder;
    builder.append(anchor, withAttachment(QStringLiteral("b.png"), "second"));
    builder.append(u"text", {});
    builder.append(anchor, withAttachment(QStringLiteral("a.png"), {}));
    const AttributedString text = builder.build();
    EXPECT_EQ(flatOf(text),
        rtfd({{"TXT.rtf", file(rtfOf(text))}, {"b.png", file("second")}, {"a.png", file({})},
            {".", file(datesOf({"TXT.rtf", "b.png", "a.png"}))}}));
}

TEST(RtfdWriter, AnAttachmentInManyPlacesIsStoredOnce)
{
    TextAttributes attributes = withAttachment(QStringLiteral("a.png"), "contents");
    AttributedStringBuilder builder;
    builder.append(anchor, attributes);
    attributes.language = QStringLiteral("de");
    builder.append(anchor, attributes);
    builder.append(u"x", {});
    builder.append(anchor, attributes);
    EXPECT_EQ(flatOf(builder.build()).count("contents"), 1);
}

TEST(RtfdWriter, OfARangeOnlyItsOwnAttachmentsAreStored)
{
    AttributedStringBuilder builder;
    builder.append(anchor, withAttachment(QStringLiteral("a.png"), "first"));
    builder.append(anchor, withAttachment(QStringLiteral("b.png"), "second"));
    builder.append(u"x", withAttachment(QStringLiteral("c.png"), "third"));
    const QByteArray bytes = RTFDFromRange(builder.build(), 1, 100).value();
    EXPECT_FALSE(bytes.contains("first"));
    EXPECT_TRUE(bytes.contains("second"));
    EXPECT_FALSE(bytes.contains("third"));
}

TEST(RtfdWriter, DocumentAttributesAreIgnored)
{
    const AttributedString text(QStringLiteral("abc"));
    EXPECT_EQ(RTFDFromRange(text, 0, 3, {{QStringLiteral("Title"), 5}}).value(), flatOf(text));
}

TEST(RtfdWriter, PortableNamesAreKept)
{
    const QStringList names{QStringLiteral("a.png"), QStringLiteral("My picture (2).jpeg"),
        QStringLiteral("M\u00FCller \u4E2D\u6587"), QStringLiteral("a..b"), QStringLiteral("\U0001F600.png")};
    const QList<QByteArray> stored = storedNames(names);
    for (qsizetype i = 0; i < names.size(); ++i)
        EXPECT_EQ(stored[i], names[i].toUtf8());
}

TEST(RtfdWriter, OtherNamesGetSubstitutesOfTheSameSuffix)
{
    const std::pair<QString, QByteArray> cases[] = {
        {QString(), "attachment-1"},
        {QStringLiteral(".."), "attachment-1"},
        {QStringLiteral("."), "attachment-1"},
        {QStringLiteral(".hidden"), "attachment-1.hidden"},
        {QStringLiteral("../a.png"), "attachment-1.png"},
        {QStringLiteral("a\n.png"), "attachment-1.png"},
        {QStringLiteral("a\\b.JPEG"), "attachment-1.JPEG"},
        {QStringLiteral("C:a"), "attachment-1"},
        {QStringLiteral(" a"), "attachment-1"},
        {QStringLiteral("a "), "attachment-1"},
        {QStringLiteral("a."), "attachment-1"},
        {QStringLiteral("a/b.\u00FC"), "attachment-1"},
        {QStringLiteral("a/b.verylongsuffix"), "attachment-1"},
        {QString(QChar(0xD800)) + QStringLiteral(".png"), "attachment-1.png"},
        {QString(QChar(0)), "attachment-1"},
        {QStringLiteral("\u202Egnp.a"), "attachment-1.a"},
        {QString(QChar(0xFFFF)), "attachment-1"},
        {QStringLiteral("\u2028"), "attachment-1"},
        {QStringLiteral("x").repeated(256), "attachment-1"},
        {QStringLiteral("\u4E2D").repeated(86), "attachment-1"},
        {QStringLiteral("TXT.rtf"), "attachment-1.rtf"},
        {QStringLiteral("txt.RTF"), "attachment-1.RTF"},
    };
    for (const auto &[name, stored] : cases)
        EXPECT_EQ(storedNames({name}), QList<QByteArray>{stored}) << name.toStdString();
    EXPECT_EQ(storedNames({QStringLiteral("x").repeated(255)}).first(), QByteArray(255, 'x'));
}

TEST(RtfdWriter, NoTwoNamesAreEqualOnAFileSystemWithoutCase)
{
    EXPECT_EQ(storedNames({QStringLiteral("attachment-2.png"), QStringLiteral("a.png"),
                  QStringLiteral("a.png"), QStringLiteral("A.PNG"), QStringLiteral("\u00E9"),
                  QStringLiteral("e\u0301"), QStringLiteral("Attachment-1.png")}),
        (QList<QByteArray>{"attachment-2.png", "a.png", "attachment-1.png", "attachment-3.PNG", "\xC3\xA9",
            "attachment-4", "attachment-5.png"}));
}

TEST(RtfdWriter, WhatReaches2GiBIsTooLong)
{
    // Three times the same contents under different names, which take the memory of one.
    const QByteArray contents(800'000'000, Qt::Uninitialized);
    AttributedStringBuilder builder;
    for (const char16_t name : {u'a', u'b', u'c'})
        builder.append(anchor, withAttachment(QChar(name), contents));
    const Result<QByteArray, DocumentError> bytes = RTFDFromRange(builder.build(), 0, 3);
    ASSERT_FALSE(bytes);
    EXPECT_EQ(causeText(bytes.error()), QStringLiteral("is larger than 2 GiB"));
}
