// SPDX-License-Identifier: MIT
#include "tests/documents/rtf/RtfDocuments.h"

namespace RtfDocuments {

QByteArray document(const QByteArray &body)
{
    return "{\\rtf1\\ansi " + body + '}';
}

AttributedString read(const QByteArray &rtf, const AttachmentSource &attachments)
{
    return readRtf(rtf, attachments).value();
}

QString textOf(const QByteArray &body)
{
    return read(document(body)).string();
}

TextAttributes attributesAt(const QByteArray &body, QChar character)
{
    const AttributedString text = read(document(body));
    const qsizetype position = text.string().indexOf(character);
    if (position < 0) {
        ADD_FAILURE() << "no such character in " << text.string().toStdString();
        return {};
    }
    return text.attributesAt(position);
}

FontAttributes fontAt(const QByteArray &body, QChar character)
{
    const std::optional<FontAttributes> font = attributesAt(body, character).font;
    EXPECT_TRUE(font.has_value()) << body.constData();
    return font.value_or(FontAttributes{});
}

ParagraphStyle styleAt(const QByteArray &body, QChar character)
{
    return attributesAt(body, character).paragraphStyle;
}

const std::vector<QByteArray> &samples()
{
    static const std::vector<QByteArray> documents = {
        R"({\rtf1\ansi\ansicpg1252\deff1\deflang1031{\fonttbl{\f0\froman\fcharset204{\*\panose 0202}Times{\*\falt Serif};}
{\f1\fswiss\fcharset128 \'82\'6c\'82\'72;}{\f2\fcharset2 Symbol;}{\f3\fcharset2 Dings;}}
{\f0 \'cf\'f0} {\f1 \'83\'41\'83A} {\f2 abc\u-3999\'61} {\f3 abc} caf\'e9 \u8364\'80 \u-10179?\u-8704?\par})",
        R"({\rtf1\mac{\upr{old}{\*\ud{\u1053 ?ew}}}{\field{\*\fldinst HYPERLINK "x"}{\fldrslt{\ul shown}}}\line
{\listtext\pard 1.\tab}{\*\unknown gone}{\pict\bin5 }}}}}89504e47}{\info{\title gone}}{\v gone}{\deleted gone}
{\object{\*\objdata 00}{\result kept}}{\header gone}{\xe gone}\emdash\~\_\-\ldblquote q\rdblquote\sect\page})",
        R"({\rtf1\deff0{\fonttbl\f0\fnil Helvetica;\f1 Menlo-Bold
;}one{\footnote\pard\plain{\super\chftn} note\par two}{\*\shpinst{\sp{\sn x}{\sv 1}}{\shptxt box\par}} after
\trowd\cellx1\cellx2\intbl a\cell b\nestcell{\*\nesttableprops\nestrow}{\nonesttables\par}\cell\row
{{\NeXTGraphic a\u228 \'fc b.png \width20 \height40\qbyfile1
})"
        "\xAC"
        R"(}tail}})",
        R"({\rtf1 so {\mmath{\*\moMath{\mr x=}{\mf{\mfPr{\mtype bar}}{\mnum{\mr 3}}{\mden{\b 4}}}{\mm{\mmr{\me a}
{\me{\msSup{\me b}{\msup 2}}}}}{\meqArr{\me c}}}{\mmathPict{\pict 00}}} on \*\b bold{\v\cell}\cell\row end\par})",
        R"({\rtf1\uc0\deftab560{\*\qbyexact{\qbyfont1 12.3;450;2;0.1;-1.5}
{\qbyparagraph1 4;2;1.1;2.2;3.3;4.4;5.5;6.6;7.7;10:0,20.5:3}{\qbylanguage1 gsw}{\qbyfile1 \u228 .png}}
\pard\qj\li720\fi-360\ri20\tqc\tx100\tqdec\tx50\tx75\pardeftab240\slleading40\sb60\sa80\rtlpar
\plain\fs25\fsmilli12600\b\i\expndtw-4\up6\lang1041 text{\qbyfont1\qbyparagraph1\qbylanguage1 exact}\
\pard\plain\dn4\sub\nosupersub end)",
    };
    return documents;
}

void expectSound(const AttributedString &text)
{
    qsizetype end = 0;
    for (qsizetype i = 0; i < text.runCount(); ++i) {
        const AttributedString::Run run = text.run(i);
        ASSERT_EQ(run.start, end);
        ASSERT_GT(run.length, 0);
        ASSERT_LT(run.attributesIndex, text.distinctAttributes().size());
        if (i > 0) {
            ASSERT_NE(run.attributesIndex, text.run(i - 1).attributesIndex);
        }
        end += run.length;
    }
    ASSERT_EQ(end, text.length());
}

} // namespace RtfDocuments
