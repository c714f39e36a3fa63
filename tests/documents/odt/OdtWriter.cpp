// SPDX-License-Identifier: MIT
#include "tests/documents/odt/OdtWriter.h"

namespace {

const QByteArray namespaces = " xmlns:office='urn:oasis:names:tc:opendocument:xmlns:office:1.0'"
                              " xmlns:text='urn:oasis:names:tc:opendocument:xmlns:text:1.0'"
                              " xmlns:style='urn:oasis:names:tc:opendocument:xmlns:style:1.0'"
                              " xmlns:fo='urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0'"
                              " xmlns:svg='urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0'"
                              " xmlns:draw='urn:oasis:names:tc:opendocument:xmlns:drawing:1.0'"
                              " xmlns:table='urn:oasis:names:tc:opendocument:xmlns:table:1.0'"
                              " xmlns:config='urn:oasis:names:tc:opendocument:xmlns:config:1.0'"
                              " xmlns:loext='urn:org:documentfoundation:names:experimental:office:xmlns:"
                              "loext:1.0'"
                              " xmlns:dc='http://purl.org/dc/elements/1.1/'"
                              " xmlns:math='http://www.w3.org/1998/Math/MathML'"
                              " xmlns:xlink='http://www.w3.org/1999/xlink' office:version='1.3'";

QByteArray section(const char *name, const QByteArray &contents)
{
    return contents.isEmpty() ? QByteArray()
                              : QByteArray("<office:") + name + '>' + contents + "</office:" + name + '>';
}

QByteArray document(const char *name, const QByteArray &contents, const QByteArray &attributes = {})
{
    return QByteArray("<?xml version='1.0' encoding='UTF-8'?>\n<office:") + name + namespaces + attributes
        + '>' + contents + "</office:" + name + '>';
}

} // namespace

QByteArray OpenDocumentText::flat() const
{
    return document("document",
        section("settings", settings) + section("font-face-decls", fontFaces) + section("styles", styles)
            + section("automatic-styles", automaticStyles) + section("master-styles", masterStyles)
            + "<office:body><office:text>" + body + "</office:text></office:body>",
        " office:mimetype='" + mimeType + "'");
}

ZipWriter OpenDocumentText::writer() const
{
    ZipWriter zip;
    zip.add({.name = "mimetype", .contents = mimeType});
    zip.add({"content.xml",
        document("document-content",
            section("font-face-decls", fontFaces) + section("automatic-styles", automaticStyles)
                + "<office:body><office:text>" + body + "</office:text></office:body>"),
        method});
    if (!styles.isEmpty() || !masterStyles.isEmpty())
        zip.add({"styles.xml",
            document("document-styles",
                section("font-face-decls", fontFaces) + section("styles", styles)
                    + section("automatic-styles",
                        "<style:style style:name='P1' style:family='paragraph'>"
                        "<style:text-properties text:display='none'/></style:style>")
                    + section("master-styles", masterStyles)),
            method});
    if (!settings.isEmpty())
        zip.add({"settings.xml", document("document-settings", section("settings", settings)), method});
    zip.add({"META-INF/manifest.xml",
        "<manifest:manifest xmlns:manifest='urn:oasis:names:tc:opendocument:xmlns:manifest:1.0'>" + manifest
            + "</manifest:manifest>",
        method});
    return zip;
}
