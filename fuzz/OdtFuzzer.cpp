// SPDX-License-Identifier: MIT
// Reads any bytes as an OpenDocument text; reading must end with a sound text or an error. Bytes that begin
// as an archive or as a flat document are read as they are. All others are the contents of the sections of a
// sound document, separated by NUL bytes: body, automatic styles, styles, fonts, settings. It is read as a
// package and as a flat file.
#include "documents/odt/OdtReader.h"
#include "documents/reading/KindDetection.h"
#include "fuzz/SoundText.h"
#include "fuzz/XmlMutator.h"
#include "tests/documents/odt/OdtWriter.h"

#include <QByteArray>
#include <QByteArrayList>

#include <array>
#include <cstdint>

namespace {

OpenDocumentText documentOf(const QByteArray &bytes)
{
    const QByteArrayList parts = bytes.split('\0');
    return {.body = parts.value(0),
        .automaticStyles = parts.value(1),
        .styles = parts.value(2),
        .fontFaces = parts.value(3),
        .settings = parts.value(4)};
}

/// What may stand in an OpenDocument text; wrappers have their content at the bar.
constexpr std::array wrappers{"<text:p>|</text:p>", "<text:h text:outline-level='1'>|</text:h>",
    "<text:p text:style-name='A'>|</text:p>", "<text:span text:style-name='T'>|</text:span>",
    "<text:a xlink:href='x'>|</text:a>", "<text:list text:style-name='L'>|</text:list>",
    "<text:list-item>|</text:list-item>", "<text:numbered-paragraph>|</text:numbered-paragraph>",
    "<text:section>|</text:section>", "<text:section text:display='none'>|</text:section>",
    "<table:table><table:table-row><table:table-cell>|</table:table-cell></table:table-row></table:table>",
    "<table:table-cell>|</table:table-cell>", "<table:covered-table-cell>|</table:covered-table-cell>",
    "<text:note text:note-class='footnote'><text:note-body>|</text:note-body></text:note>",
    "<text:note text:note-class='endnote'><text:note-body>|</text:note-body></text:note>",
    "<draw:frame><draw:text-box>|</draw:text-box></draw:frame>", "<draw:custom-shape>|</draw:custom-shape>",
    "<draw:g>|</draw:g>", "<draw:frame><draw:object><math:math>|</math:math></draw:object></draw:frame>",
    "<math:mfrac>|</math:mfrac>", "<math:mtd>|</math:mtd>", "<math:mi>|</math:mi>",
    "<text:ruby><text:ruby-base>|</text:ruby-base></text:ruby>", "<text:ruby-text>|</text:ruby-text>",
    "<office:annotation>|</office:annotation>", "<text:tracked-changes>|</text:tracked-changes>",
    "<text:changed-region text:id='c'><text:deletion>|</text:deletion></text:changed-region>",
    "<text:hidden-text text:is-hidden='true'>|</text:hidden-text>", "<text:date>|</text:date>",
    "<text:table-of-content><text:index-body>|</text:index-body></text:table-of-content>",
    "<style:style style:name='A' style:family='paragraph'>|</style:style>",
    "<style:style style:name='T' style:family='text'>|</style:style>",
    "<style:default-style style:family='paragraph'>|</style:default-style>",
    "<text:list-style style:name='L'><text:list-level-style-number text:level='1'>|"
    "</text:list-level-style-number></text:list-style>",
    "<style:paragraph-properties><style:tab-stops>|</style:tab-stops></style:paragraph-properties>"};

constexpr std::array leaves{"<text:s/>", "<text:s text:c='3'/>", "<text:s text:c='99999'/>", "<text:tab/>",
    "<text:line-break/>", "<text:soft-page-break/>", "<text:change-start text:change-id='c'/>",
    "<text:change-end text:change-id='c'/>", "<text:change text:change-id='c'/>",
    "<text:hidden-paragraph text:is-hidden='true'/>", "<text:page-number>7</text:page-number>",
    "<text:variable-set text:display='none'>x</text:variable-set>", "<text:p/>", "<table:table-cell/>",
    "<text:p text:style-name='T'/>", "<style:tab-stop style:position='1cm' style:type='char'/>",
    "<style:text-properties text:display='none'/>", "<style:text-properties fo:font-size='150%'/>",
    "<style:text-properties style:font-name='F' fo:font-weight='bold'/>",
    "<style:text-properties fo:font-family='Symbol' style:text-position='super 50%'/>",
    "<style:paragraph-properties fo:margin-left='1in' fo:text-indent='-1in' fo:line-height='200%'/>",
    "<style:paragraph-properties style:writing-mode='rl-tb' fo:text-align='end'/>",
    "<style:style style:name='A' style:family='paragraph' style:parent-style-name='A'/>",
    "<style:font-face style:name='F' svg:font-family=\"'A B', serif\"/>",
    "<style:list-level-properties text:space-before='1cm' text:min-label-width='1cm'/>",
    "<config:config-item config:name='TabsRelativeToIndent'>false</config:config-item>", "text", " \n ",
    "&#x1F41F;", "&#xF061;", "&#x639;"};

} // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxBytes, unsigned seed)
{
    return XmlMutator(wrappers, leaves).mutateParts(data, size, maxBytes, seed);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (bytes.startsWith("PK") || bytes.startsWith("<?xml")) {
        if (const Result<AttributedString, DocumentError> text = readOpenDocument(bytes))
            requireSoundParagraphs(text.value());
        return 0;
    }
    const OpenDocumentText document = documentOf(bytes);
    for (const QByteArray &form : {document.package(), document.flat()}) {
        if (const Result<AttributedString, DocumentError> text = readOpenDocument(form)) {
            const Result<DocumentKind, DocumentError> kind = kindOfDocument({}, form);
            require(kind && kind.value() == DocumentKind::OpenDocument);
            requireSoundParagraphs(text.value());
        }
    }
    return 0;
}
