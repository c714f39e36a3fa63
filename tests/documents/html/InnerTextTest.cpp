// SPDX-License-Identifier: MIT
// The text of a page: the rendered text collection steps of the HTML standard, subject by subject.
#include "tests/documents/html/PageText.h"

TEST(InnerText, APageWithoutTextHasNone)
{
    expectTexts({
        {"", u""},
        {" \n ", u""},
        {"<!DOCTYPE html><html><head><title>title</title></head><body></body></html>", u""},
        {"<p></p><div><br hidden></div>", u""},
    });
}

TEST(InnerText, BareTextNeedsNoElement)
{
    expectTexts({{"words", u"words"}, {"two words<b>, bold", u"two words, bold"}});
}

TEST(InnerText, WhiteSpaceCollapsesToOneSpace)
{
    expectTexts({
        {"a  b", u"a b"},
        {"a\nb\r\nc\rd\te", u"a b c d e"},
        {"a \t\r\n b", u"a b"},
        {"a&#13;&#10;&#9;b", u"a b"},
    });
}

TEST(InnerText, WhiteSpaceAtEitherEndOfABlockIsDropped)
{
    expectTexts({
        {"<div> a </div>", u"a"},
        {"<div> <b> a </b> </div> <div> b </div>", u"a\nb"},
        {"<div>a <div> b </div> c</div>", u"a\nb\nc"},
    });
}

TEST(InnerText, WhiteSpaceCollapsesAcrossInlineElements)
{
    expectTexts({
        {"<b>a </b> b", u"a b"},
        {"<b>a</b> <i> b</i>", u"a b"},
        {"<b>a </b><i></i> <u> </u>b", u"a b"},
        {"a<b> </b>b", u"a b"},
        {"a <b></b> b", u"a b"},
        {"a<!-- no text -->b <!-- none --> c", u"ab c"},
    });
}

TEST(InnerText, WhiteSpaceAroundALineBreakIsDropped)
{
    expectTexts({
        {"a <br> b", u"a\nb"},
        {"<b>a </b> <br> <b> b</b>", u"a\nb"},
    });
}

TEST(InnerText, ALineBreakIsAlwaysALineEnd)
{
    expectTexts({
        {"a<br>b<br/>c", u"a\nb\nc"},
        {"a<br><br>b", u"a\n\nb"},
        {"<br>a", u"\na"},
        {"<div>a<br></div>", u"a\n"},
        {"<div>a<br></div><div>b</div>", u"a\n\nb"},
    });
}

TEST(InnerText, AnEndTagOfALineBreakIsALineBreak)
{
    expectTexts({{"a</br>b", u"a\nb"}, {"a</BR>b</br >c", u"a\nb\nc"}});
}

TEST(InnerText, AnEndTagOfAParagraphAloneIsAnEmptyParagraph)
{
    expectTexts({{"a</p>b", u"a\n\nb"}, {"</p>a", u"a"}, {"a</p></p>b", u"a\n\nb"}});
}

TEST(InnerText, BlocksAreOnLinesOfTheirOwn)
{
    expectTexts({
        {"a<div>b</div>c", u"a\nb\nc"},
        {"a<div></div>b", u"a\nb"},
        {"a<div></div> <div></div>b", u"a\nb"},
        {"<div><div>a</div></div><section><h1>b</h1></section>", u"a\nb"},
        {"<ul><li>a<li>b</ul><ol><li>c</ol>", u"a\nb\nc"},
        {"<dl><dt>a<dd>b</dl>", u"a\nb"},
        {"<fieldset><legend>a</legend>b</fieldset>", u"a\nb"},
        {"a<hr>b<hr><hr>c", u"a\nb\nc"},
        {"a<dialog open>b</dialog>c<search>d</search>e", u"a\nb\nc\nd\ne"},
        {"<b>a<div>b</div>c</b>", u"a\nb\nc"},
        {"a<center>b</center>c", u"a\nb\nc"},
    });
}

TEST(InnerText, ParagraphsAreSeparatedByAnEmptyLine)
{
    expectTexts({
        {"<p>a<p>b", u"a\n\nb"},
        {"<p>a</p>\n<p>b</p>\n", u"a\n\nb"},
        {"<p>a</p><div></div><p></p><p></p>b", u"a\n\nb"},
        {"a<p>b</p>c", u"a\n\nb\n\nc"},
        {"<p>a</p><div>b</div>", u"a\n\nb"},
        {"<div>a</div><div><p>b</p></div>c", u"a\n\nb\n\nc"},
        {"<p style='margin:0'>a</p>b", u"a\n\nb"},
        {"a<p style='display:inline'>b</p>c", u"a\n\nb\n\nc"},
        {"<h1>a</h1><p>b</p>", u"a\n\nb"},
    });
}

TEST(InnerText, InlineElementsAddNothing)
{
    expectTexts({
        {"a<span>b</span>c<em>d</em><a href=x>e</a><code>f</code><q>g</q>", u"abcdefg"},
        {"a<wbr>b", u"ab"},
        {"a<unknown-element>b</unknown-element>c", u"abc"},
    });
}

TEST(InnerText, SpaceAtBothSidesOfABoxInALineStays)
{
    expectTexts({
        {"a <img src=x alt=word> b", u"a  b"},
        {"a <input value=word> b", u"a  b"},
        {"<img src=x> a", u" a"},
        {"<div>a <img src=x></div>b", u"a \nb"},
        {"<div> <img src=x> </div>", u""},
        {"a <span style='display:inline-block'> b </span> c", u"a b c"},
        {"a<span style='display:inline-block'> b </span>c", u"abc"},
        {"a <button> b </button>c", u"a bc"},
        {"a <img style='display:block'> b", u"a\nb"},
    });
}

TEST(InnerText, TheContentOfReplacedElementsIsNoText)
{
    expectTexts({
        {"<video>a</video><audio controls>b</audio><canvas>c</canvas>", u""},
        {"<iframe src=x>a</iframe><object data=x>b</object><embed src=x>", u""},
        {"<meter value=1>a</meter><progress>b</progress>", u""},
    });
}

TEST(InnerText, PreformattedTextKeepsItsWhiteSpace)
{
    expectTexts({
        {"<pre> a  b\n\tc \n</pre>", u" a  b\n\tc \n"},
        {"<pre>\na</pre>", u"a"},
        {"<pre>\n\na</pre>", u"\na"},
        {"<pre>a\r\nb\rc</pre>", u"a\nb\nc"},
        {"<pre>a</pre><pre>b</pre>", u"a\nb"},
        {"<pre> a <b> b </b></pre>", u" a  b "},
        {"<listing> a</listing><xmp> <b> </xmp>", u" a\n <b> "},
        {"a<plaintext> <b> </plaintext>", u"a\n <b> </plaintext>"},
        {"x <span style='white-space:pre'>  a </span> y", u"x   a  y"},
        {"<div>a<span style='white-space:pre'>\n</span> b</div>", u"a\nb"},
    });
}

TEST(InnerText, WhiteSpaceOfAStyleAttributeCounts)
{
    expectTexts({
        {"<div style='white-space:pre'> a  b\nc </div>", u" a  b\nc "},
        {"<div style='white-space: pre-wrap'> a  b\nc </div>", u" a  b\nc "},
        {"<div style='white-space:break-spaces'> a </div>", u" a "},
        {"<div style='white-space:nowrap'> a  b\nc </div>", u"a b c"},
        {"<div style='white-space:pre-line'> a  b \n  c\t \n\n d </div>", u"a b\nc\n\nd"},
        {"<div style='white-space:pre-line'><b>a </b>\n <i> b</i></div>", u"a\nb"},
        {"<pre style='white-space:normal'> a\n b </pre>", u"a b"},
        {"<pre>a  <span style='white-space:normal'>b\n c</span></pre>", u"a  b c"},
    });
}

TEST(InnerText, ATextAreaKeepsItsWhiteSpaceAndNoTags)
{
    expectTexts({
        {"<textarea>\n a  b\nc <b></textarea>", u" a  b\nc <b>"},
        {"x <textarea>a</textarea> y", u"x a y"},
    });
}

TEST(InnerText, ElementsThatAreNeverShownHaveNoText)
{
    expectTexts({
        {"<head><title>t</title><style>s</style><script>s</script></head>a", u"a"},
        {"a<script>document.write('b')</script><style>c</style><template>d</template>e", u"ae"},
        {"a<noscript>b</noscript><datalist><option>c</option></datalist>d", u"ad"},
        {"a<noembed>b</noembed><noframes>c</noframes><dialog>d</dialog>e", u"ae"},
        {"<ruby>a<rp>(</rp><rt>b</rt><rp>)</rp></ruby>", u"ab"},
        {"<frameset><frame src=x><noframes>a</noframes></frameset>", u""},
        {"a<input type=hidden value=b> c", u"a c"},
    });
}

TEST(InnerText, HiddenElementsHaveNoText)
{
    expectTexts({
        {"a<b hidden>b</b>c", u"ac"},
        {"a<div hidden=until-found>b</div>c", u"ac"},
        {"a<div popover>b</div>c", u"ac"},
        {"a<div style='display:none'>b</div>c", u"ac"},
        {"a<div style='display : NONE ! important ; color:red'>b</div>c", u"ac"},
        {"<body hidden>a", u""},
        {"a<script style='display:block'>b</script>", u"a\nb"},
        {"a<b hidden style='display:inline'>b</b>c", u"abc"},
    });
}

TEST(InnerText, InvisibleElementsHaveNoTextButVisibleOnesInThemDo)
{
    expectTexts({
        {"a<span style='visibility:hidden'>b</span>c", u"ac"},
        {"a<span style='visibility:collapse'>b</span>c", u"ac"},
        {"<div style='visibility:hidden'>a<b style='visibility:visible'>b</b><br></div>", u"b"},
        {"<div style='visibility:hidden'><p><b style='visibility:visible'>a</b></p>"
         "<div style='visibility:visible'>b</div></div>",
            u"a\nb"},
    });
}

TEST(InnerText, AnElementWithoutABoxLeavesOnlyItsContents)
{
    expectTexts({
        {"a<div style='display:contents'>b<p style='display:contents'>c</p></div>d", u"abcd"},
        {"a <div style='display:contents'> b</div>", u"a b"},
    });
}

TEST(InnerText, OptionsOfASelectionAreOnLinesOfTheirOwn)
{
    expectTexts({
        {"<select><option>a<option>b</select>", u"a\nb"},
        {"<select><optgroup label=x><option>a<optgroup label=y><option> b</select>", u"a\nb"},
        {"a<select></select>b", u"ab"},
        {"a<select><option></select>b", u"a\nb"},
        {"a<option>b</option>c", u"a\nb\nc"},
    });
}

TEST(InnerText, DetailsShowTheirSummaryAndWhatIsOpen)
{
    expectTexts({
        {"<details><summary>a</summary>b<p>c</p><summary>d</summary></details>e", u"a\ne"},
        {"<details open><summary>a</summary>b</details>c", u"a\nb\nc"},
        {"<details>a</details>b", u"b"},
    });
}

TEST(InnerText, FloatsAndItemsOfFlexibleBoxesAreBlocks)
{
    expectTexts({
        {"a<span style='float:left'>b</span>c", u"a\nb\nc"},
        {"a<span style='position:absolute'>b</span>c", u"a\nb\nc"},
        {"a<span style='position:relative; float:none'>b</span>c", u"abc"},
        {"<div style='display:flex'><span>a</span><span>b</span></div>", u"a\nb"},
        {"<div style='display:grid'><b>a</b> <b>b</b></div>", u"a\nb"},
        {"x<span style='display:inline-flex'><b>a</b><b>b</b></span>y", u"x\na\nb\ny"},
    });
}

TEST(InnerText, CharactersOfNoWidthStay)
{
    expectTexts({
        {"a&nbsp;b&nbsp; &nbsp;c", u"a\u00A0b\u00A0 \u00A0c"},
        {"<div>&nbsp;</div>", u"\u00A0"},
        {"a&shy;b\u00ADc", u"a\u00ADb\u00ADc"},
        {"a&zwj;&#x200B;b", u"a\u200D\u200Bb"},
        {"a&emsp;\u3000b", u"a\u2003\u3000b"},
    });
}

TEST(InnerText, EntitiesAreCharacters)
{
    expectTexts({
        {"&lt;b&gt; &amp;amp; &quot;&apos;", u"<b> &amp; \"'"},
        {"&eacute;&#233;&#xE9;&eacute", u"éééé"},
        {"&#128;&#150;", u"€–"},
        {"&#x1F600;&nosuch;&", u"😀&nosuch;&"},
        {"&NotEqualTilde;", u"\u2242\u0338"},
        {"a&#0;b&#xD800;&#x110000;", u"a\uFFFDb\uFFFD\uFFFD"},
    });
}

TEST(InnerText, DrawingsHaveTheTextOfTheirTextElements)
{
    expectTexts({
        {"a<svg><title>t</title><desc>d</desc>x<g>y<text>b<tspan>c</tspan></text></g></svg>", u"a\nbc"},
        {"<svg><defs><text>a</text></defs><style>b</style></svg>", u""},
        {"<svg><text>a</text><text>b</text></svg>", u"a\nb"},
        {"<svg><foreignObject><p>a</p>b</foreignObject></svg>", u"a\n\nb"},
    });
}

TEST(InnerText, MisnestedTagsLoseNoText)
{
    expectTexts({
        {"<b>a<i>b</b>c</i>d", u"abcd"},
        {"<table>a<tr>b<td>c</table>", u"ab\nc"},
        {"<p>a<table><td>b</table>c", u"a\nb\nc"},
        {"<!DOCTYPE html><p>a<table><td>b</table>c", u"a\n\nb\nc"},
        {"<a href=x>a<a href=y>b</a>c", u"abc"},
        {"<div>a</section>b", u"ab"},
        {"<li>a</ul><td>b", u"ab"},
    });
}

TEST(InnerText, ListMarkersAndQuotationMarksOfTheStyleSheetAreNoText)
{
    expectTexts({{"<ol start=3><li value=7>a</ol><q>b</q>", u"a\nb"}});
}

TEST(InnerText, AnIndexFormIsIgnored)
{
    expectTexts({{"a<isindex prompt=x>b", u"ab"}});
}

TEST(InnerText, ACutPageHasTheTextBeforeTheCut)
{
    expectTexts({{"<p>a<b class='x", u"a"}, {"<p>a<!-- x", u"a"}, {"<p>a<", u"a<"}, {"<p>a&am", u"a&am"},
        {"<p>a<scr", u"a"}, {"a<script>b", u"a"}, {"<title>a", u""}});
}
