// SPDX-License-Identifier: MIT
#include "tests/documents/docx/PackageWriter.h"

namespace {

const QByteArray officeTypes("application/vnd.openxmlformats-officedocument.wordprocessingml.");

} // namespace

QByteArray WordPackage::mainPart() const
{
    return "<?xml version='1.0' encoding='UTF-8' standalone='yes'?>\n<w:document xmlns:w='" + wordNamespace
        + "' xmlns:r='" + relationshipsNamespace
        + "' xmlns:mc='http://schemas.openxmlformats.org/markup-compatibility/2006'"
          " xmlns:m='http://schemas.openxmlformats.org/officeDocument/2006/math'"
          " xmlns:v='urn:schemas-microsoft-com:vml'"
          " xmlns:wp='http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing'"
          " xmlns:a='http://schemas.openxmlformats.org/drawingml/2006/main'"
          " xmlns:wps='http://schemas.microsoft.com/office/word/2010/wordprocessingShape'"
          " xmlns:w14='http://schemas.microsoft.com/office/word/2010/wordml'"
          " xmlns:wp14='http://schemas.microsoft.com/office/word/2010/wordprocessingDrawing' "
        + rootAttributes + "><w:body>" + body + "</w:body></w:document>";
}

ZipWriter WordPackage::writer() const
{
    std::vector<Part> parts = others;
    const auto addPart = [&](const char *type, const char *root, const QByteArray &contents) {
        if (!contents.isEmpty())
            parts.push_back(
                {QByteArray("rIdOf") + type, type, QByteArray(type) + ".xml", officeTypes + type + "+xml",
                    QByteArray("<w:") + root + " xmlns:w='" + wordNamespace + "'>" + contents + "</w:" + root
                        + ">"});
    };
    addPart("styles", "styles", styles);
    addPart("numbering", "numbering", numbering);
    addPart("settings", "settings", settings);
    addPart("footnotes", "footnotes", footnotes);
    addPart("endnotes", "endnotes", endnotes);
    if (!fontScheme.isEmpty())
        parts.push_back({"rIdOfTheme", "theme", "theme/theme1.xml",
            "application/vnd.openxmlformats-officedocument.theme+xml",
            "<a:theme xmlns:a='http://schemas.openxmlformats.org/drawingml/2006/main'><a:themeElements>"
            "<a:fontScheme>"
                + fontScheme + "</a:fontScheme></a:themeElements></a:theme>"});

    QByteArray types("<Types xmlns='http://schemas.openxmlformats.org/package/2006/content-types'>"
                     "<Default Extension='rels'"
                     " ContentType='application/vnd.openxmlformats-package.relationships+xml'/>"
                     "<Override PartName='/word/document.xml' ContentType='"
        + mainType + "'/>");
    const QByteArray relationshipsStart(
        "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'>");
    QByteArray ofMainPart = relationshipsStart;
    for (const Part &part : parts) {
        ofMainPart += "<Relationship Id='" + part.identifier + "' Type='" + relationshipsNamespace + "/"
            + part.relationshipType + "' Target='" + part.target + "'"
            + (part.isExternal ? " TargetMode='External'/>" : "/>");
        if (!part.isExternal)
            types +=
                "<Override PartName='/word/" + part.target + "' ContentType='" + part.contentType + "'/>";
    }

    ZipWriter zip;
    zip.add({"[Content_Types].xml", types + "</Types>", method});
    zip.add({"_rels/.rels",
        relationshipsStart + "<Relationship Id='rId1' Type='" + relationshipsNamespace
            + "/officeDocument' Target='word/document.xml'/><Relationship Id='rId2' Type='"
            + relationshipsNamespace + "/extended-properties' Target='docProps/app.xml'/></Relationships>",
        method});
    if (!figures.isEmpty())
        zip.add({"docProps/app.xml",
            "<Properties xmlns='http://schemas.openxmlformats.org/officeDocument/2006/extended-properties'>"
                + figures + "</Properties>",
            method});
    zip.add({"word/document.xml", mainPart(), method});
    zip.add({"word/_rels/document.xml.rels", ofMainPart + "</Relationships>", method});
    for (const Part &part : parts)
        if (!part.isExternal)
            zip.add({"word/" + part.target, part.contents, method});
    return zip;
}
