// SPDX-License-Identifier: MIT
#include "fuzz/docx/XmlMutator.h"

#include <array>
#include <optional>
#include <vector>

namespace {

struct Range {
    qsizetype start;
    qsizetype end;

    [[nodiscard]] QByteArray of(const QByteArray &xml) const { return xml.sliced(start, end - start); }
};

/// What may stand in a document of Word; wrappers have their content at the bar.
constexpr std::array wrappers{"<w:p>|</w:p>", "<w:r>|</w:r>", "<w:r><w:t xml:space='preserve'>|</w:t></w:r>",
    "<w:ins>|</w:ins>", "<w:del>|</w:del>", "<w:moveFrom>|</w:moveFrom>", "<w:moveTo>|</w:moveTo>",
    "<w:hyperlink>|</w:hyperlink>", "<w:smartTag>|</w:smartTag>", "<w:customXml>|</w:customXml>",
    "<w:sdt><w:sdtContent>|</w:sdtContent></w:sdt>", "<w:fldSimple w:instr='PAGE'>|</w:fldSimple>",
    "<w:tbl><w:tr><w:tc>|</w:tc></w:tr></w:tbl>", "<w:tr>|</w:tr>", "<w:tc>|</w:tc>",
    "<w:ruby><w:rubyBase>|</w:rubyBase></w:ruby>", "<w:ruby><w:rt>|</w:rt></w:ruby>",
    "<w:r><w:pict><v:textbox><w:txbxContent>|</w:txbxContent></v:textbox></w:pict></w:r>",
    "<mc:AlternateContent><mc:Choice Requires='wps'>|</mc:Choice></mc:AlternateContent>",
    "<mc:AlternateContent><mc:Choice Requires='x'/><mc:Fallback>|</mc:Fallback></mc:AlternateContent>",
    "<w14:x>|</w14:x>", "<w:footnote w:id='1'>|</w:footnote>", "<m:oMath><m:r>|</m:r></m:oMath>",
    "<w:style w:type='paragraph' w:styleId='S'>|</w:style>", "<w:rPr>|</w:rPr>", "<w:pPr>|</w:pPr>"};

constexpr std::array leaves{"<w:tab/>", "<w:br/>", "<w:br w:type='page'/>", "<w:cr/>", "<w:noBreakHyphen/>",
    "<w:softHyphen/>", "<w:sym w:font='Symbol' w:char='F061'/>", "<w:fldChar w:fldCharType='begin'/>",
    "<w:fldChar w:fldCharType='separate'/>", "<w:fldChar w:fldCharType='end'/>",
    "<w:r><w:fldChar w:fldCharType='begin'/></w:r>", "<w:r><w:fldChar w:fldCharType='separate'/></w:r>",
    "<w:r><w:fldChar w:fldCharType='end'/></w:r>", "<w:instrText>PAGE</w:instrText>",
    "<w:footnoteReference w:id='1'/>", "<w:r><w:footnoteReference w:id='2'/></w:r>",
    "<w:altChunk r:id='chunk'/>", "<w:pPr><w:rPr><w:del/></w:rPr></w:pPr>",
    "<w:pPr><w:rPr><w:vanish/></w:rPr></w:pPr>", "<w:rPr><w:vanish/></w:rPr>",
    "<w:rPr><w:vanish w:val='0'/></w:rPr>", "<w:trPr><w:del/></w:trPr>", "<w:tcPr><w:cellDel/></w:tcPr>",
    "<w:pPr><w:pStyle w:val='S'/></w:pPr>", "<w:rStyle w:val='S'/>", "<w:basedOn w:val='S'/>",
    "<w:numPr><w:ilvl w:val='1'/><w:numId w:val='1'/></w:numPr>", "<w:sz w:val='3000'/>",
    "<w:rFonts w:ascii='Symbol' w:eastAsia='Noto'/>", "<w:rtl/>", "<w:tabs><w:tab w:pos='99'/></w:tabs>",
    "<w:ind w:hanging='720' w:left='360'/>", "<w:delText>gone</w:delText>", "text", "&#x1F41F;", "&#xF0B7;"};

size_t under(size_t bound, std::mt19937 &random)
{
    return random() % bound;
}

/// Its elements, with all that is in them; a start without an end is one by itself.
std::vector<Range> elementsOf(const QByteArray &xml)
{
    std::vector<Range> elements;
    std::vector<size_t> open;
    for (qsizetype start = xml.indexOf('<'); start >= 0; start = xml.indexOf('<', start + 1)) {
        const qsizetype close = xml.indexOf('>', start);
        if (close < 0)
            break;
        if (xml.at(start + 1) == '/') {
            if (!open.empty()) {
                elements[open.back()].end = close + 1;
                open.pop_back();
            }
            continue;
        }
        if (xml.at(close - 1) != '/')
            open.push_back(elements.size());
        elements.push_back({start, close + 1});
    }
    return elements;
}

QByteArray wrapped(const QByteArray &content, std::mt19937 &random)
{
    return QByteArray(wrappers[under(wrappers.size(), random)]).replace('|', content);
}

QByteArray fragment(std::mt19937 &random)
{
    const QByteArray leaf(leaves[under(leaves.size(), random)]);
    return under(2, random) ? leaf : wrapped(leaf, random);
}

/// At a place between two tags, or at the end.
QByteArray withInserted(
    const QByteArray &xml, const std::vector<Range> &elements, const QByteArray &text, std::mt19937 &random)
{
    if (elements.empty())
        return xml + text;
    const Range &place = elements[under(elements.size(), random)];
    const qsizetype positions[]{place.start, place.end, xml.indexOf('>', place.start) + 1};
    QByteArray changed = xml;
    return changed.insert(positions[under(std::size(positions), random)], text);
}

} // namespace

QByteArray mutatedXml(const QByteArray &xml, std::mt19937 &random)
{
    const std::vector<Range> elements = elementsOf(xml);
    if (elements.empty())
        return xml + fragment(random);
    const Range &chosen = elements[under(elements.size(), random)];
    const qsizetype length = chosen.end - chosen.start;
    QByteArray changed = xml;
    switch (under(6, random)) {
    case 0:
        return changed.remove(chosen.start, length);
    case 1:
        return changed.insert(chosen.end, chosen.of(xml));
    case 2:
        return changed.replace(chosen.start, length, wrapped(chosen.of(xml), random));
    case 3: {
        const QByteArray moved = chosen.of(xml);
        changed.remove(chosen.start, length);
        return withInserted(changed, elementsOf(changed), moved, random);
    }
    case 4: { // only its content stays
        const QByteArray element = chosen.of(xml);
        const qsizetype start = element.indexOf('>') + 1;
        const qsizetype end = element.lastIndexOf('<');
        return changed.replace(
            chosen.start, length, end > start ? element.sliced(start, end - start) : QByteArray());
    }
    default:
        return withInserted(xml, elements, fragment(random), random);
    }
}
