// SPDX-License-Identifier: MIT
// Which text the style sheets of a page hide.
#include "tests/documents/html/PageText.h"

namespace {

/// The text of a page with this sheet. The elements are inline, so that shown texts stand side by side.
QString textWith(const QByteArray &sheet, const QByteArray &body)
{
    return textOfBytes("<!DOCTYPE html><style>" + sheet + "</style>" + body);
}

/// Whether a sheet hides the element with the id "x", of class "a b", in a div of class "outer".
bool hides(const QByteArray &sheet)
{
    const QString text = textWith(sheet,
        "<div class=outer><section><b id=x class='a b'>secret</b></section> seen</div><em class=c>too</em>");
    EXPECT_TRUE(text.contains(QStringLiteral("seen")) && text.contains(QStringLiteral("too")))
        << sheet.constData();
    return !text.contains(QStringLiteral("secret"));
}

/// Selectors that are not supported, with names that differ.
QByteArray hoveredNames(int count)
{
    QByteArray list;
    for (int i = 0; i < count; ++i)
        list += ".n" + QByteArray::number(i) + ":hover,";
    return list;
}

/// Whether a declaration of the element itself shows it in spite of a sheet.
bool isShownInSpiteOf(const QByteArray &sheet, const QByteArray &declarations)
{
    return textWith(sheet, "<i style='" + declarations + "'>x</i>") == QStringLiteral("x");
}

} // namespace

TEST(StyleSheet, HidesByElementClassAndId)
{
    for (const char *selector : {"#x", ".a", ".b", "b.a", "b#x", ".a.b", "B.b.a#x", "*#x", "p, .a", "p,\n#x ",
             ".outer b.a", "div .a", "section > b", "div>section>.a", "body .outer #x", ".outer * > .b",
             "html b.a", "\\62.\\61", ".\\61  .x, .a", "/* */ .a /* , */"}) {
        EXPECT_TRUE(hides(QByteArray(selector) + "{display:none}")) << selector;
        EXPECT_TRUE(hides(QByteArray(selector) + "{visibility:hidden}")) << selector;
    }
}

TEST(StyleSheet, DoesNotHideWhatItsSelectorsDoNotName)
{
    for (const char *selector : {"#y", ".A", ".ab", "#X", "i.a", "b.a.z", ".z .a", "div > b", ".a .b",
             "section > div b", "b > section", ".outer > .outer b", "#x#y", ".c .a", "xb"})
        EXPECT_FALSE(hides(QByteArray(selector) + "{display:none}")) << selector;
}

TEST(StyleSheet, SelectorsThatAreNotSupportedHideNothing)
{
    for (const char *selector : {".a:hover", "b:not(.c)", ".a::before", "[id=x]", "[id='x}']", "p + .a",
             "p ~ .a", "b|b", "& .a", ".a.b.a.b.a"})
        EXPECT_FALSE(hides(QByteArray(selector) + "{display:none}")) << selector;
    EXPECT_TRUE(hides(".a:hover, #x{display:none}"));
    EXPECT_TRUE(hides("[title=\"{,}\"], #x{display:none}"));
}

TEST(StyleSheet, AnInvalidSelectorMakesTheWholeListInvalid)
{
    for (const char *selectors :
        {"#x, .1", "#x, ", "#x,,p", "#x, %", "#x, .", "#x, p..q", "> #x", "#x >", "", "; #x"})
        EXPECT_FALSE(hides(QByteArray(selectors) + "{display:none}")) << selectors;
    EXPECT_TRUE(hides("p..q{display:none} #x{display:none}"));
}

TEST(StyleSheet, TheMoreSpecificRuleWinsAndThenTheLater)
{
    EXPECT_TRUE(hides("#x{display:none} .a.b{display:inline}"));
    EXPECT_TRUE(hides(".a.b{display:none} b.a{display:inline}"));
    EXPECT_TRUE(hides(".a{display:none} b{display:inline}"));
    EXPECT_TRUE(hides(".a{display:inline} .b{display:none}"));
    EXPECT_FALSE(hides(".a{display:none} .b{display:inline}"));
    EXPECT_FALSE(hides("#x{display:block} .outer section b.a.b{display:none}"));
    EXPECT_FALSE(hides(".a{display:none} #x{display:initial}"));
}

TEST(StyleSheet, AnImportantDeclarationWins)
{
    EXPECT_TRUE(hides("b{display:none!important} #x{display:inline}"));
    EXPECT_TRUE(hides("b{display:none ! IMPORTANT; display:inline}"));
    EXPECT_FALSE(hides("b{display:none!important} #x{display:inline!important}"));
    EXPECT_TRUE(hides("b{visibility:hidden!important} #x{visibility:visible}"));
    EXPECT_FALSE(hides("b{display:none !unimportant}"));
}

TEST(StyleSheet, AStyleAttributeWinsUnlessTheSheetIsImportant)
{
    EXPECT_TRUE(isShownInSpiteOf("i{display:none}", "display:inline"));
    EXPECT_FALSE(isShownInSpiteOf("i{display:none!important}", "display:inline"));
    EXPECT_TRUE(isShownInSpiteOf("i{display:none!important}", "display:inline!important"));
    EXPECT_TRUE(isShownInSpiteOf("i{visibility:hidden}", "visibility:visible"));
    EXPECT_FALSE(isShownInSpiteOf("i{visibility:hidden!important}", "visibility:visible"));
    EXPECT_FALSE(isShownInSpiteOf("i{display:none}", "color:red"));
}

TEST(StyleSheet, VisibleTextInsideOfHiddenTextIsShown)
{
    const QByteArray body = "<i class=h>no <b class=s>yes</b> no</i>";
    EXPECT_EQ(textWith(".h{visibility:hidden} .s{visibility:visible}", body), QStringLiteral("yes"));
    EXPECT_EQ(textWith(".h{visibility:collapse} .s{visibility:initial}", body), QStringLiteral("yes"));
    EXPECT_EQ(textWith(".h{display:none} .s{display:inline;visibility:visible}", body), QString());
}

TEST(StyleSheet, DisplayAlsoDecidesWhereLinesEnd)
{
    EXPECT_EQ(textWith("span{display:block}", "a<span>b</span>c"), QStringLiteral("a\nb\nc"));
    EXPECT_EQ(textWith("div{display:inline}", "a<div>b</div>c"), QStringLiteral("abc"));
    EXPECT_EQ(textWith("br{display:block}", "a<br>b"), QStringLiteral("a\nb"));
    EXPECT_EQ(textWith("br{display:none}", "a<br>b"), QStringLiteral("ab"));
}

TEST(StyleSheet, AppliesToTextBeforeItAndFromEveryStyleElement)
{
    EXPECT_EQ(textOfBytes("<!DOCTYPE html><b>no</b><i>yes</i><STYLE type='Text/CSS'>b{display:none}</STYLE>"),
        QStringLiteral("yes"));
    EXPECT_EQ(
        textOfBytes("<!DOCTYPE html><style>b{display:none}</style><style>b{display:inline}</style><b>yes"),
        QStringLiteral("yes"));
    EXPECT_EQ(textOfBytes("<!DOCTYPE html><svg><style>b{display:none}</style></svg><b>no</b>yes"),
        QStringLiteral("yes"));
}

TEST(StyleSheet, OfOtherTypesOrMediaOrForPagesWithoutScriptsIsIgnored)
{
    for (const char *start : {"<style type='text/less'>", "<style media=print>", "<noscript><style>",
             "<template><style>", "<style media='(max-width: 400px)'>", "<title><style>", "<!--<style>"})
        EXPECT_TRUE(textOfBytes("<!DOCTYPE html>" + QByteArray(start)
            + "b{display:none}</style></noscript></template></title>--><body><b>yes</b>")
                        .contains(QStringLiteral("yes")))
            << start;
}

TEST(StyleSheet, InMarksOfCommentsOrSectionsIsRead)
{
    EXPECT_TRUE(hides("<!-- #x{display:none} -->"));
    EXPECT_TRUE(hides("<![CDATA[ #x{display:none} ]]>"));
    EXPECT_TRUE(hides("/*<![CDATA[*/ #x{display:none} /*]]>*/"));
    EXPECT_FALSE(hides("/* #x{display:none} "));
}

TEST(StyleSheet, RulesForOtherMediaAreIgnored)
{
    for (const char *media : {"screen", "all", "print, screen", "only screen", "not print", "SCREEN",
             "screen and (min-width: 600px)", "(min-width:40em)", "(max-width:100rem) and (min-width: 1px)",
             "/* */ screen"})
        EXPECT_TRUE(hides("@media " + QByteArray(media) + "{p{} #x{display:none}}")) << media;
    for (const char *media :
        {"print", "speech", "not screen", "screen and (max-width: 600px)", "(min-width: 1281px)",
            "(orientation: portrait)", "not all and (monochrome)", "print and", "screen and (width >= 1px)"})
        EXPECT_FALSE(hides("@media " + QByteArray(media) + "{p{} #x{display:none}}")) << media;
    EXPECT_TRUE(hides("@media print{p{}} #x{display:none}"));
    EXPECT_TRUE(hides("@media screen{@media all{p{}} #x{display:none}} p{}"));
    EXPECT_FALSE(hides("@media print{@media all{p{}} #x{display:none}} p{}"));
}

TEST(StyleSheet, OtherAtRulesAreSkipped)
{
    EXPECT_TRUE(hides("@charset \"utf-8\"; @import 'x.css'; #x{display:none}"));
    EXPECT_TRUE(hides("@layer base, top; @layer top{#x{display:none}}"));
    EXPECT_TRUE(hides("@supports (display: grid){#x{display:none}}"));
    EXPECT_FALSE(hides("@supports not (display: grid){#x{display:none}}"));
    EXPECT_FALSE(hides("@keyframes x{#x{display:none}}"));
    EXPECT_FALSE(hides("@font-face{font-family:\"}\"; #x{display:none}}"));
    EXPECT_FALSE(hides("i{ b, #x {display:none;} }"));
    EXPECT_TRUE(hides("#x{ i {color:red} display:none }"));
    EXPECT_TRUE(hides("#x{background:url(data:;x}y);display:none"));
    EXPECT_TRUE(hides("#x{content:'}\\'}';display:none"));
}

TEST(StyleSheet, DoesNotHideThePageAsAWhole)
{
    for (const char *sheet : {"body{display:none!important}", "html{visibility:hidden}",
             "*{visibility:hidden} b{visibility:visible}"})
        EXPECT_EQ(textWith(sheet, "<b>yes</b>"), QStringLiteral("yes")) << sheet;
    EXPECT_EQ(textOfBytes("<!DOCTYPE html><body style='display:none'>no"), QString());
}

TEST(StyleSheet, IgnoresTheCaseOfNamesOnlyInPagesWithoutADoctype)
{
    EXPECT_EQ(textOfBytes("<style>.A{display:none}</style><b class=a>no</b>yes"), QStringLiteral("yes"));
    EXPECT_EQ(textWith(".A{display:none}", "<b class=a>yes</b>"), QStringLiteral("yes"));
}

TEST(StyleSheet, NamesMayBeEscapedOrInAnyScript)
{
    EXPECT_EQ(
        textWith(".md\\:hidden{display:none}", "<b class='md:hidden'>no</b>yes"), QStringLiteral("yes"));
    EXPECT_EQ(textWith("#\\31 0{display:none}", "<b id=10>no</b>yes"), QStringLiteral("yes"));
    EXPECT_EQ(
        textWith(".sch\xC3\xB6n{display:none}", "<b class=sch\xC3\xB6n>no</b>yes"), QStringLiteral("yes"));
    EXPECT_EQ(textWith("my-box{display:none}", "<my-box>no</my-box>yes"), QStringLiteral("yes"));
}

TEST(StyleSheet, ThatIsHostileTakesTimeInProportionToThePage)
{
    const QByteArray deep = QByteArray("<div class=a>").repeated(900);
    struct Page {
        const char *name;
        bool isRefused;
        QByteArray sheet;
        QByteArray body;
    };
    const Page pages[] = {
        {"many universal rules", true, QByteArray("*{display:block}").repeated(15'000),
            QByteArray("<b>x").repeated(3).repeated(50) + QByteArray("<p>x").repeated(50'000)},
        {"too many rules", true, QByteArray("p{display:block}").repeated(100'000), "x"},
        {"long selectors in a deep tree", true,
            (QByteArray("* ").repeated(14) + "> .z .a{display:block}").repeated(1000),
            deep + QByteArray("<i class=a></i>").repeated(20'000)},
        {"an open block", false, QByteArray("@media all{").repeated(200'000), "x"},
        {"open parentheses", false, QByteArray("((((").repeated(200'000), "x"},
        {"open strings", false, QByteArray("a{'\n").repeated(200'000), "x"},
        {"comments", false, "a{" + QByteArray("/**/").repeated(500'000) + "display:none}", "x"},
        {"escapes", false, QByteArray("\\").repeated(500'000), "x"},
        {"one long list", true, QByteArray("a,").repeated(500'000) + "a{display:none}", "x"},
        {"many names", true, hoveredNames(150'000) + "x{display:none}", "x"},
        {"one long class", false, ".a{display:none}",
            "<b class='" + QByteArray("a ").repeated(1'000'000) + "'>x"},
        {"declarations", false, "a{" + QByteArray("display:none;").repeated(200'000) + "}", "x"},
    };
    for (const Page &page : pages) {
        const double start = processorSeconds();
        const auto text = readHtml("<!DOCTYPE html><style>" + page.sheet + "</style>" + page.body);
        EXPECT_EQ(!text, page.isRefused) << page.name;
        EXPECT_TRUE(text || text.error().cause == DocumentError::Cause::TooComplex) << page.name;
        EXPECT_LT(processorSeconds() - start, 4) << page.name;
    }
}
