// SPDX-License-Identifier: MIT
// Pages that try to break the reader, or to make it open other files.
#include "documents/html/HtmlReader.h"

#include "tests/documents/html/PageText.h"

#include <QFile>

#include <arpa/inet.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <random>

namespace {

using Cause = DocumentError::Cause;

const QByteArray sample =
    "\xEF\xBB\xBF<!DOCTYPE html><html lang='en' dir=ltr><head><meta charset=\"utf-8\"><title>T</title>"
    "<style>p{}</style></head><body><h1 style='font-size:2em;text-align:center'>Head &amp; "
    "h\xC3\xA9</h1><p>One <b>two <i>three</b> four</i>&nbsp;<br/>five</br></p><pre> a\n\tb"
    "</pre><!-- c --><table><caption>C</caption><tr><td>1<td>2<tr><th>3</table><ul><li>x<li>y"
    "</ul><select><option>o</select><svg><text>t</text></svg><![CDATA[x]]></body></html>";

/// Expects the properties of every valid text.
void expectSound(const QByteArray &page)
{
    const Result<AttributedString, DocumentError> read = readHtml(page);
    if (!read)
        return;
    const AttributedString &text = read.value();
    ASSERT_TRUE(text.string().isValidUtf16()) << page.toPercentEncoding().constData();
    ASSERT_LE(text.length(), page.size()) << page.toPercentEncoding().constData();
    ASSERT_FALSE(text.string().contains(u'\0')) << page.toPercentEncoding().constData();
    for (const TextAttributes &attributes : text.distinctAttributes()) {
        ASSERT_TRUE(attributes.font);
        ASSERT_GE(attributes.font->pointSize, 1);
        ASSERT_LE(attributes.font->pointSize, 1000);
        ASSERT_GE(attributes.paragraphStyle.headIndent, 0);
        ASSERT_GE(attributes.paragraphStyle.firstLineHeadIndent, 0);
    }
}

/// Reading returns a text or an error within the time limits.
void expectAnswer(const QByteArray &page)
{
    const double start = processorSeconds();
    expectSound(page);
    EXPECT_LT(processorSeconds() - start, 12) << page.left(40).constData();
}

QByteArray numbered(const char *format, int count)
{
    QByteArray page;
    for (int i = 0; i < count; ++i)
        page += QByteArray(format).replace('#', QByteArray::number(i));
    return page;
}

} // namespace

TEST(HostileHtml, EveryPrefixOfAPageIsAPage)
{
    for (qsizetype length = 0; length <= sample.size(); ++length)
        expectSound(sample.first(length));
}

TEST(HostileHtml, AnyByteMayBeAnother)
{
    for (qsizetype at = 0; at < sample.size(); ++at) {
        for (const char byte : {'\0', '<', '>', '"', '&', ' ', '\xFF'}) {
            QByteArray page = sample;
            page[at] = byte;
            expectSound(page);
        }
    }
}

TEST(HostileHtml, AnyTagsInAnyOrderAreAPage)
{
    const char *const pieces[] = {"<table>", "</table>", "<tr>", "<td>", "<b>", "</b>", "<i>", "</i>", "<p>",
        "</p>", "<div>", "</div>", "<select>", "<option>", "</select>", "<svg>", "</svg>", "<math>", "<mi>",
        "<title>", "</title>", "<template>", "</template>", "<form>", "<button>", "<a href=x>", "<nobr>",
        "<object>", "</object>", "<frameset>", "<body a=b>", "</body>", "<html c=d>", "<pre>\n",
        "<textarea>\n", "</textarea>", "<script>", "</script>", "<!--", "-->", "<details>", "<summary>",
        "<caption>", " ", "x", "&amp;", "<br>", "<col>", "<isindex>", "<foreignObject>", "<h1>", "<li>",
        "<font size=7>", "<hr>"};
    std::mt19937 random(20'260'521);
    for (int round = 0; round < 1500; ++round) {
        QByteArray page;
        for (int i = 0; i < 40; ++i)
            page += pieces[random() % std::size(pieces)];
        expectSound(page);
    }
}

TEST(HostileHtml, AThousandNestedElementsAreReadAndMoreAreRefused)
{
    for (const char *tag :
        {"<div>", "<b>", "<table><td>", "<font color=red>", "<ul><li>", "<svg>", "<blockquote>"}) {
        // A cell has a row and a group of rows around it.
        const int levels =
            QByteArray(tag).contains("<td>") ? 4 : static_cast<int>(QByteArray(tag).count('<'));
        const auto read = readHtml(QByteArray(tag).repeated(960 / levels) + "<p>text");
        EXPECT_TRUE(read) << tag;
        const auto deeper = readHtml(QByteArray(tag).repeated(100'000) + "text");
        ASSERT_FALSE(deeper) << tag;
        EXPECT_EQ(deeper.error().cause, Cause::TooDeep) << tag;
        EXPECT_EQ(causeText(deeper.error()),
            QStringLiteral("has more than 1000 elements inside each other; simplify it"));
    }
}

TEST(HostileHtml, CommentsOutsideOfTheTreeHideNoDepth)
{
    // One of the pages has a comment wherever the depth is measured.
    for (const char *start : {"", "<p></p>"}) {
        const auto read = readHtml(start + QByteArray("<b></body><!-- -->").repeated(20'000));
        ASSERT_FALSE(read);
        EXPECT_EQ(read.error().cause, Cause::TooDeep);
    }
}

TEST(HostileHtml, AttributesOfTheSizeOfANodeHideNoDepth)
{
    for (int length = 120; length <= 130; ++length) {
        const QByteArray tag = "<span x='" + QByteArray(length, 'a') + "'>";
        EXPECT_TRUE(readHtml(tag.repeated(900))) << length;
        const auto read = readHtml(tag.repeated(20'000));
        ASSERT_FALSE(read) << length;
        EXPECT_EQ(read.error().cause, Cause::TooDeep) << length;
    }
}

TEST(HostileHtml, DepthIsFoundWhereverItIs)
{
    const QByteArray deep = QByteArray("<span>").repeated(1'200);
    for (const QByteArray &page :
        {QByteArray("<p>x</p>").repeated(50'000) + deep, deep + QByteArray("<br>").repeated(50'000),
            "<table>" + deep, "<ul><li>x</ul>" + deep + "</body><!-- -->", "<svg>" + deep}) {
        const auto read = readHtml(page);
        ASSERT_FALSE(read) << page.left(10).constData();
        EXPECT_EQ(read.error().cause, Cause::TooDeep) << page.left(10).constData();
    }
}

TEST(HostileHtml, ADeepBodyThatAFramesetReplacesIsRefusedBeforeTheStackEnds)
{
    // The parser releases the body recursively.
    const QByteArray wide = QByteArray("<p></p>").repeated(140'000);
    const auto read = readHtml(wide + QByteArray("<span>").repeated(100'000) + "<frameset></frameset>");
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().cause, Cause::TooDeep);
    EXPECT_TRUE(readHtml(QByteArray("<span>").repeated(990) + "<frameset></frameset>"));
}

TEST(HostileHtml, ManyElementsBesideEachOtherAreNotDeep)
{
    for (const char *piece : {"<p>x", "<li>x", "<div>x</div>", "<table><tr><td>x</table>", "<a>x",
             "<option>x", "<b><p>x</b></p>", "<i>x</i>"})
        EXPECT_TRUE(readHtml(QByteArray(piece).repeated(5'000))) << piece;
}

TEST(HostileHtml, MisnestedFormattingIsReadOrRefused)
{
    for (const char *piece : {"<b><p></b>", "<a><b><i>", "<b><i><u><s>x</b></i></u></s>", "<i><p></i>x",
             "<nobr>x", "<a><p>x", "</b>", "<table>x", "<table><b>x", "<div></b>", "<span></div>",
             "<table><td><object></td></table><b></b>", "<b><table></b><td>"})
        expectAnswer(QByteArray(piece).repeated(160'000 / static_cast<qsizetype>(qstrlen(piece))));
    expectAnswer(numbered("<p><b x=#></p>", 12'000));
    expectAnswer(numbered("<font x=#><p></font>", 12'000));
    expectAnswer(numbered("<b x=#><table><td></b>", 12'000));
}

TEST(HostileHtml, FormattingThatEveryParagraphReopensIsTooComplex)
{
    const auto read = readHtml(numbered("<p><b x=#></p>", 900) + QByteArray("<p>x</p>").repeated(20'000));
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().cause, Cause::TooComplex);
    EXPECT_EQ(causeText(read.error()),
        QStringLiteral("takes too much time or memory to read; simplify or divide it"));
}

TEST(HostileHtml, AMegabyteOfAttributesIsReadOrRefused)
{
    expectAnswer("<p " + numbered(" a#", 130'000) + ">x");
    expectAnswer("<p style='" + QByteArray("a:(\"").repeated(50'000) + "'>x");
    expectAnswer("<p style='" + QByteArray("/*").repeated(100'000) + "'>x");
    expectAnswer("<p " + QByteArray("\"<'=").repeated(50'000) + ">x");
    expectAnswer(numbered("<body a#>", 20'000) + "x");
}

TEST(HostileHtml, LongRunsOfOneKindAreText)
{
    const auto lengthOf = [](const QByteArray &page) {
        const auto read = readHtml(page);
        return read ? read.value().length() : -1;
    };
    constexpr qsizetype count = 1'000'000;
    EXPECT_EQ(lengthOf(QByteArray(count, 'x')), count);
    EXPECT_EQ(lengthOf(QByteArray(count, ' ')), 0);
    EXPECT_EQ(lengthOf("<pre>" + QByteArray(count, ' ')), count);
    EXPECT_EQ(lengthOf(QByteArray(count, '&')), count);
    EXPECT_EQ(lengthOf(QByteArray(count, '<')), count);
    EXPECT_EQ(lengthOf("<!--" + QByteArray(count, '-')), 0);
    EXPECT_EQ(lengthOf("&#" + QByteArray(count, '1') + ";"), 1);
    EXPECT_EQ(lengthOf(QByteArray("<br>").repeated(count / 8)), count / 8);
}

TEST(HostileHtml, PagesThatOnceBrokeTheReaderAreRead)
{
    // Sequences in which the parser follows references between tables, templates, foreign and misnested
    // elements.
    for (const char *page : {"<table><svg><desc><td>", "<select><template><td>",
             "<template><tr><td></template><b>", "<math><annotation-xml encoding=text/html><svg><p>",
             "<frameset></frameset></html><noframes>", "<svg><title><b></svg>x",
             "<table><caption><select><td>x", "</template>x", "<form><template></form>x"})
        expectSound(page);
}

TEST(HostileHtml, PagesOf2GibibytesAreTooLong)
{
    // Never read, so only address space is used.
    constexpr size_t length = INT32_MAX;
    void *memory = ::mmap(nullptr, length, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    ASSERT_NE(memory, MAP_FAILED);
    const auto read =
        readHtml(QByteArrayView(static_cast<const char *>(memory), static_cast<qsizetype>(length)));
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().cause, Cause::TooLong);
    EXPECT_EQ(causeText(read.error()), QStringLiteral("is larger than 2 GiB"));
    ::munmap(memory, length);
}

TEST(HostileHtml, ResourcesOfAPageAreNotFetched)
{
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    ASSERT_GE(listener, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    ASSERT_EQ(::bind(listener, reinterpret_cast<sockaddr *>(&address), size), 0);
    ASSERT_EQ(::listen(listener, 16), 0);
    ASSERT_EQ(::getsockname(listener, reinterpret_cast<sockaddr *>(&address), &size), 0);
    const QByteArray server = "http://127.0.0.1:" + QByteArray::number(::ntohs(address.sin_port));

    // Reading this file would block until somebody writes.
    const QString pipe = TestHome::instance().root() + QStringLiteral("/named-by-a-page");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QByteArray file = "file://" + QFile::encodeName(pipe);

    for (const QByteArray &url : {server, file}) {
        const QByteArray page = "<!DOCTYPE html SYSTEM \"" + url + "/d\"><html manifest='" + url
            + "/m'><head><base href='" + url + "'><link rel=stylesheet href='" + url + "/l'><script src='"
            + url + "/s'></script><style>@import '" + url + "/i';</style>"
            + "<meta http-equiv=refresh content='0;url=" + url + "/r'></head><body background='" + url
            + "/b' style='background:url(" + url + "/u); font-family: url(" + url + "/f)'>text<img src='"
            + url + "/g'><iframe src='" + url + "'></iframe><object data='" + url + "'></object><embed src='"
            + url + "'><video src='" + url + "'></video><svg><image href='" + url + "'/><use href='" + url
            + "#x'/></svg></body></html>";
        EXPECT_EQ(readHtml(page).value().string(), QStringLiteral("text"));
    }
    pollfd connection{listener, POLLIN, 0};
    EXPECT_EQ(::poll(&connection, 1, 0), 0) << "somebody has connected";
    ::close(listener);
}
