// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfGraphics.h"

#include "tests/documents/rtf/RtfDocuments.h"

#include <QMap>

using namespace RtfDocuments;

namespace {

const QString marked = QStringLiteral(u"a\uFFFCb");

/// The files stored next to a document, and how often each was requested.
class Files {
public:
    explicit Files(std::initializer_list<QString> names)
    {
        for (const QString &name : names)
            m_files.insert(name, std::make_shared<const Attachment>(Attachment{name, "contents"}));
    }

    AttachmentSource source()
    {
        return [this](const QString &name) {
            ++m_requests[name];
            return m_files.value(name);
        };
    }
    [[nodiscard]] int requests(const QString &name) const { return m_requests.value(name); }

private:
    QMap<QString, std::shared_ptr<const Attachment>> m_files;
    QMap<QString, int> m_requests;
};

/// The file name of the attachment in the text "a\uFFFCb"; null without an attachment.
QString nameIn(const QByteArray &body, Files &files)
{
    const AttributedString text = read(document(body), files.source());
    EXPECT_EQ(text.string(), marked) << body.constData();
    const std::shared_ptr<const Attachment> attachment = text.attributesAt(1).attachment;
    EXPECT_EQ(text.attributesAt(0).attachment, nullptr);
    EXPECT_EQ(text.attributesAt(2).attachment, nullptr);
    return attachment ? attachment->fileName : QString();
}

} // namespace

TEST(RtfReader, MakesOneCharacterOfAnAttachment)
{
    Files files{QStringLiteral("image.png")};
    const QString name = QStringLiteral("image.png");
    EXPECT_EQ(nameIn("a{{\\NeXTGraphic image.png \\width640 \\height480 \\appleattachmentpadding0 "
                     "\\appleembedtype0 \\appleaqc\n}\xAC}b",
                  files),
        name);
    EXPECT_EQ(nameIn(R"(a{{\NeXTGraphic image.png \width0 \height0}\'ac}b)", files), name);
    EXPECT_EQ(nameIn(R"(a{{\NeXTGraphic image.png}\'ac}b)", files), name);
    EXPECT_EQ(files.requests(name), 3);
}

TEST(RtfReader, ReadsTheNameOfAnAttachmentInEveryForm)
{
    const QString name = QStringLiteral(u"my {1}  fäü.png");
    Files files{name};
    EXPECT_EQ(nameIn("a{{\\NeXTGraphic my \\{1\\}  f\\uc0\\u228 \\'fc.png \\width0}\\'ac}b", files), name);
}

TEST(RtfReader, KeepsTheCharacterOfAMissingAttachment)
{
    Files files{};
    EXPECT_EQ(nameIn(R"(a{{\NeXTGraphic image.png \width0}\'ac}b)", files), QString());
    EXPECT_EQ(textOf(R"(a{{\NeXTGraphic image.png \width0}\'ac}b)"), marked);
}

TEST(RtfReader, AsksForEachNameOnce)
{
    Files files{QStringLiteral("one"), QStringLiteral("two")};
    const QByteArray body = R"({{\NeXTGraphic one \width0}\'ac}{{\NeXTGraphic two \width0}\'ac})";
    EXPECT_EQ(read(document(body + body + body), files.source()).length(), 6);
    EXPECT_EQ(files.requests(QStringLiteral("one")), 1);
    EXPECT_EQ(files.requests(QStringLiteral("two")), 1);
}

TEST(RtfReader, ReadsTheMarkerAsACharacterWithoutAnAttachment)
{
    EXPECT_EQ(textOf("\\'ac{\xAC}"), QStringLiteral(u"¬¬"));
    EXPECT_EQ(textOf(R"({{\NeXTGraphic a \width0}\'ac\'ac{\'ac}}\'ac)"), QStringLiteral(u"\uFFFC¬¬¬"));
    EXPECT_EQ(textOf(R"({{\NeXTGraphic a \width0}{\'ac}})"), QStringLiteral(u"¬"));
    EXPECT_EQ(textOf(R"(a{{\NeXTGraphic a \width0}}b)"), QStringLiteral("ab"));
}

TEST(RtfReader, GivesAnAttachmentTheFormatOfItsGroup)
{
    EXPECT_EQ(fontAt(R"({\b{\NeXTGraphic a \width0}\'ac})", QChar(0xFFFC)).weight, 700);
}

TEST(RtfReader, DropsAHiddenAttachment)
{
    EXPECT_EQ(textOf(R"(a{\v{\NeXTGraphic a \width0}\'ac}b)"), QStringLiteral("ab"));
}

TEST(RtfReader, RestoresTheNameOfAnAttachmentThatIsStoredUnderAnotherName)
{
    Files files{QStringLiteral("1.png")};
    const QString own = QStringLiteral(u"ä ;.png");
    const QByteArray table = R"({\*\qbyexact{\qbyfile2 \u228 ? \u59?.png}})";
    EXPECT_EQ(nameIn(table + R"(a{{\NeXTGraphic 1.png \width0\qbyfile2}\'ac}b)", files), own);
    EXPECT_EQ(nameIn(table + R"(a{\qbyfile2{\NeXTGraphic 1.png \width0}\'ac}b)", files), own);
    EXPECT_EQ(nameIn(table + R"(a{{\NeXTGraphic 1.png \width0}\qbyfile2\'ac}b)", files), own);
    EXPECT_EQ(
        nameIn(table + R"(a{{\NeXTGraphic 1.png \width0\qbyfile3}\'ac}b)", files), QStringLiteral("1.png"));
}

TEST(RtfGraphics, ShareAttachmentsWithEqualNamesAndContents)
{
    const AttachmentSource source = [](const QString &name) {
        return std::make_shared<const Attachment>(Attachment{name, name.endsWith(u'b') ? "b" : "contents"});
    };
    RtfExactValues exactValues;
    exactValues.add(RtfAction::ExactFile, 1, u"a");
    RtfGraphics graphics(source, exactValues);
    const auto attachment = [&](const char *storedName, qint32 fileNumber) {
        return graphics.attachment(graphics.add(QString::fromLatin1(storedName), fileNumber), 0);
    };
    const std::shared_ptr<const Attachment> a = attachment("a", 0);
    EXPECT_EQ(*a, (Attachment{QStringLiteral("a"), "contents"}));
    EXPECT_EQ(attachment("a", 1), a);
    EXPECT_EQ(attachment("other", 1), a);
    EXPECT_EQ(*attachment("other", 0), (Attachment{QStringLiteral("other"), "contents"}));
    EXPECT_EQ(*attachment("b", 1), (Attachment{QStringLiteral("a"), "b"}));
    EXPECT_EQ(attachment("b", 1), attachment("b", 1));
}
