// SPDX-License-Identifier: MIT
#include "tests/documents/odt/OdtTest.h"

#include <random>

namespace {

using Cause = DocumentError::Cause;

/// Absent if the document can be read.
std::optional<Cause> failureOf(const OpenDocumentText &document)
{
    const Result<AttributedString, DocumentError> text = readOpenDocument(document.package());
    return text ? std::nullopt : std::optional(text.error().cause);
}

QByteArray nested(const QByteArray &start, const QByteArray &end, int depth)
{
    return start.repeated(depth) + end.repeated(depth);
}

} // namespace

TEST(HostileOdt, WithBillionsOfSpacesIsRefused)
{
    EXPECT_EQ(failureOf({.body = "<text:p><text:s text:c='2147483647'/></text:p>"}), Cause::TooComplex);
    EXPECT_EQ(
        failureOf({.body = "<text:p>" + QByteArray("<text:s text:c='100001'/>").repeated(10) + "</text:p>"}),
        Cause::TooComplex);
    EXPECT_EQ(styledTextOf({.body = "<text:p><text:s text:c='1000000'/></text:p>"}).length(), 1'000'001);
}

TEST(HostileOdt, WithTextBoxesDeepInEachOtherIsRefused)
{
    const QByteArray box = "<text:p>x<draw:frame><draw:text-box>";
    const QByteArray end = "</draw:text-box></draw:frame></text:p>";
    EXPECT_EQ(failureOf({.body = nested(box, end, 20)}), std::nullopt);
    EXPECT_EQ(failureOf({.body = nested(box, end, 21)}), Cause::TooComplex);
}

TEST(HostileOdt, NestedTooDeeplyIsRefused)
{
    EXPECT_EQ(failureOf({.body = "<text:p>" + nested("<text:span>", "</text:span>", 1'900) + "</text:p>"}),
        std::nullopt);
    EXPECT_EQ(failureOf({.body = nested("<text:section>", "</text:section>", 2'000)}), Cause::TooComplex);
}

TEST(HostileOdt, WithMoreStylesThanAnyRealDocumentIsRefused)
{
    EXPECT_EQ(failureOf({.body = "<text:p/>",
                  .automaticStyles = QByteArray("<style:style style:family='text'/>").repeated(200'001)}),
        Cause::TooComplex);
}

TEST(HostileOdt, WithStylesThatInheritFromEachOtherIsRead)
{
    const auto style = [](const QByteArray &name, const QByteArray &parent) {
        return "<style:style style:family='paragraph' style:name='" + name + "' style:parent-style-name='"
            + parent + "'><style:text-properties fo:font-size='1000%'/></style:style>";
    };
    EXPECT_EQ(textOfBody("<text:p text:style-name='A'>a</text:p><text:p text:style-name='C'>c</text:p>",
                  style("A", "B") + style("B", "A") + style("C", "C")),
        u"a\nc\n");
}

TEST(HostileOdt, WithEntitiesIsDamaged)
{
    const QByteArray flat = OpenDocumentText{.body = "<text:p>&a;</text:p>"}.flat();
    const QByteArray type = "<!DOCTYPE x [<!ENTITY a 'aaaa'>]>";
    const QByteArray document = QByteArray(flat).insert(flat.indexOf("<office:document"), type);
    const Result<AttributedString, DocumentError> text = readOpenDocument(document);
    EXPECT_FALSE(text);
}

TEST(HostileOdt, WithElementsInWrongPlacesIsRead)
{
    EXPECT_EQ(
        textOfBody(
            "text<text:span>x</text:span><text:p>a<text:p>b</text:p><table:table><table:table-row>"
            "<table:table-cell><text:p>t</text:p></table:table-cell></table:table-row></table:table>"
            "c</text:p><text:note><text:p>n</text:p></text:note><text:list-item><text:p>d</text:p>"
            "</text:list-item><table:table-cell/><text:note-body><text:s text:c='5'/></text:note-body>"),
        u"ac\nb\nd\n\n");
}

TEST(HostileOdt, CutOffAnywhereIsAnError)
{
    OpenDocumentText document{.body = "<text:p>one</text:p>", .styles = "<style:default-style/>"};
    document.method = ZipWriter::Method::Deflated;
    const QByteArray bytes = document.package();
    for (qsizetype length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(readOpenDocument(bytes.first(length)).hasValue()) << length;
    const QByteArray flat = document.flat();
    for (qsizetype length = 0; length < flat.size(); ++length)
        EXPECT_FALSE(readOpenDocument(flat.first(length)).hasValue()) << length;
}

TEST(HostileOdt, WithAByteChangedIsReadOrRefused)
{
    std::mt19937 random(1);
    const QByteArray flat =
        OpenDocumentText{.body = "<text:list><text:list-item><text:p>one<text:s text:c='9'/>"
                                 "</text:p></text:list-item></text:list>"}
            .flat();
    for (int i = 0; i < 2'000; ++i) {
        QByteArray changed = flat;
        changed[static_cast<qsizetype>(random() % static_cast<size_t>(flat.size()))] =
            static_cast<char>(random());
        const Result<AttributedString, DocumentError> text = readOpenDocument(changed);
        EXPECT_TRUE(!text || text.value().isEmpty() || text.value().string().endsWith(u'\n'));
    }
}
