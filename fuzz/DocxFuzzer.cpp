// SPDX-License-Identifier: MIT
// Reads any bytes as a Word document; reading must end with a sound text or an error. Bytes that begin as an
// archive are read as they are. All others are the contents of the parts of a sound package, separated by NUL
// bytes: body, styles, numbering, footnotes, a chunk.
#include "documents/docx/DocxReader.h"
#include "documents/reading/DocumentReader.h"
#include "documents/reading/KindDetection.h"
#include "fuzz/SoundText.h"
#include "fuzz/XmlMutator.h"
#include "tests/documents/docx/PackageWriter.h"

#include <QByteArray>
#include <QByteArrayList>

#include <array>
#include <cstdint>

namespace {

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

} // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxBytes, unsigned seed)
{
    return XmlMutator(wrappers, leaves).mutateParts(data, size, maxBytes, seed);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const bool isArchive = bytes.startsWith("PK");
    const QByteArray package = isArchive ? bytes : packageOf(bytes);
    if (const Result<AttributedString, DocumentError> text =
            readDocument(DocumentKind::WordDocument, package)) {
        const Result<DocumentKind, DocumentError> kind = kindOfDocument({}, package);
        // An archive without a name shows its kind by the usual names of its parts alone.
        require(isArchive || (kind && kind.value() == DocumentKind::WordDocument));
        requireSoundParagraphs(text.value());
    }
    return 0;
}
