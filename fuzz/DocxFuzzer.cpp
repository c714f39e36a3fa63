// SPDX-License-Identifier: MIT
// Reads any bytes as a Word document; reading must end with a sound text or an error. Bytes that begin as an
// archive are read as they are. All others are the contents of the parts of a sound package, separated by NUL
// bytes: body, styles, numbering, footnotes, a chunk. The mutator changes them element by element, and byte
// by byte in one case of four.
#include "documents/docx/DocxReader.h"
#include "documents/reading/DocumentReader.h"
#include "tests/documents/docx/PackageWriter.h"

#include <QByteArray>
#include <QByteArrayList>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <random>
#include <vector>

namespace {

void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

void requireSound(const AttributedString &text)
{
    require(text.isEmpty() || text.string().endsWith(u'\n'));
    qsizetype end = 0;
    for (qsizetype i = 0; i < text.runCount(); ++i) {
        const AttributedString::Run run = text.run(i);
        require(run.start == end && run.length > 0);
        require(i == 0 || run.attributesIndex != text.run(i - 1).attributesIndex);
        end += run.length;
    }
    require(end == text.length());
}

QByteArray packageOf(const QByteArray &bytes)
{
    const QByteArrayList parts = bytes.split('\0');
    WordPackage package{.body = parts.value(0),
        .styles = parts.value(1),
        .numbering = parts.value(2),
        .footnotes = parts.value(3)};
    package.others = {{"chunk", "aFChunk", "chunk.txt", "text/plain", parts.value(4)}};
    return package.bytes();
}

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

size_t randomBelow(size_t bound, std::mt19937 &random)
{
    return random() % bound;
}

/// The elements with their content; a start tag without an end tag counts as an element.
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

QByteArray wrap(const QByteArray &content, std::mt19937 &random)
{
    return QByteArray(wrappers[randomBelow(wrappers.size(), random)]).replace('|', content);
}

QByteArray fragment(std::mt19937 &random)
{
    const QByteArray leaf(leaves[randomBelow(leaves.size(), random)]);
    return randomBelow(2, random) ? leaf : wrap(leaf, random);
}

/// Inserts the text between two tags, or at the end.
QByteArray insertSomewhere(
    const QByteArray &xml, const std::vector<Range> &elements, const QByteArray &text, std::mt19937 &random)
{
    if (elements.empty())
        return xml + text;
    const Range &place = elements[randomBelow(elements.size(), random)];
    const qsizetype positions[]{place.start, place.end, xml.indexOf('>', place.start) + 1};
    QByteArray changed = xml;
    return changed.insert(positions[randomBelow(std::size(positions), random)], text);
}

/// The same part of a document with one change: an element repeated, removed, moved, wrapped or unwrapped, or
/// one of a Word document inserted. Most results are still well-formed. xml: need not be well-formed.
QByteArray mutateXml(const QByteArray &xml, std::mt19937 &random)
{
    const std::vector<Range> elements = elementsOf(xml);
    if (elements.empty())
        return xml + fragment(random);
    const Range &chosen = elements[randomBelow(elements.size(), random)];
    const qsizetype length = chosen.end - chosen.start;
    QByteArray changed = xml;
    switch (randomBelow(6, random)) {
    case 0:
        return changed.remove(chosen.start, length);
    case 1:
        return changed.insert(chosen.end, chosen.of(xml));
    case 2:
        return changed.replace(chosen.start, length, wrap(chosen.of(xml), random));
    case 3: {
        const QByteArray moved = chosen.of(xml);
        changed.remove(chosen.start, length);
        return insertSomewhere(changed, elementsOf(changed), moved, random);
    }
    case 4: { // only its content stays
        const QByteArray element = chosen.of(xml);
        const qsizetype start = element.indexOf('>') + 1;
        const qsizetype end = element.lastIndexOf('<');
        return changed.replace(
            chosen.start, length, end > start ? element.sliced(start, end - start) : QByteArray());
    }
    default:
        return insertSomewhere(xml, elements, fragment(random), random);
    }
}

} // namespace

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t maxBytes);

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxBytes, unsigned seed)
{
    std::mt19937 random(seed);
    QByteArrayList parts =
        QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)).split('\0');
    if (parts.first().startsWith("PK") || random() % 4 == 0)
        return LLVMFuzzerMutate(data, size, maxBytes);
    // The body in every other case: it has the richest format.
    const size_t place = random() % 2 ? 0 : random() % static_cast<size_t>(parts.size());
    QByteArray &part = parts[static_cast<qsizetype>(place)];
    for (unsigned changes = 1 + random() % 4; changes > 0; --changes)
        part = mutateXml(part, random);
    QByteArray mutated = parts.join('\0');
    mutated.truncate(static_cast<qsizetype>(maxBytes));
    std::copy(mutated.begin(), mutated.end(), reinterpret_cast<char *>(data));
    return static_cast<size_t>(mutated.size());
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const bool isArchive = bytes.startsWith("PK");
    const QByteArray package = isArchive ? bytes : packageOf(bytes);
    const bool isKnown = looksLikeDocx(package);
    if (const Result<AttributedString, DocumentError> text =
            readDocument(DocumentKind::WordDocument, package)) {
        require(isKnown);
        requireSound(text.value());
    }
    return 0;
}
