// SPDX-License-Identifier: MIT
#include "documents/docx/OfficeXml.h"

#include "documents/docx/MarkupCompatibility.h"

namespace {

const KnownNamespaces &officeNamespaces()
{
    static const KnownNamespaces known{
        {"http://schemas.openxmlformats.org/wordprocessingml/2006/main", OfficeSpace::Word},
        {"http://purl.oclc.org/ooxml/wordprocessingml/main", OfficeSpace::Word},
        {"http://schemas.openxmlformats.org/officeDocument/2006/math", OfficeSpace::Math},
        {"http://purl.oclc.org/ooxml/officeDocument/math", OfficeSpace::Math},
        {"http://schemas.openxmlformats.org/drawingml/2006/main", OfficeSpace::Drawing},
        {"http://purl.oclc.org/ooxml/drawingml/main", OfficeSpace::Drawing},
        {"http://schemas.openxmlformats.org/officeDocument/2006/relationships", OfficeSpace::Relationships},
        {"http://purl.oclc.org/ooxml/officeDocument/relationships", OfficeSpace::Relationships},
        {"http://schemas.openxmlformats.org/package/2006/relationships", OfficeSpace::PackageRelationships},
        {"http://schemas.openxmlformats.org/package/2006/content-types", OfficeSpace::ContentTypes},
        {"http://schemas.openxmlformats.org/markup-compatibility/2006", OfficeSpace::Compatibility},
        {"http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing", OfficeSpace::Supported},
        {"http://purl.oclc.org/ooxml/drawingml/wordprocessingDrawing", OfficeSpace::Supported},
        {"http://schemas.openxmlformats.org/drawingml/2006/picture", OfficeSpace::Supported},
        {"http://purl.oclc.org/ooxml/drawingml/picture", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/drawing/2010/main", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2010/wordprocessingShape", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2010/wordprocessingGroup", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2010/wordprocessingCanvas", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2010/wordprocessingDrawing", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2010/wordml", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2012/wordml", OfficeSpace::Supported},
        {"http://schemas.microsoft.com/office/word/2006/wordml", OfficeSpace::Supported},
        {"urn:schemas-microsoft-com:vml", OfficeSpace::Supported},
        {"urn:schemas-microsoft-com:office:office", OfficeSpace::Supported},
        {"urn:schemas-microsoft-com:office:word", OfficeSpace::Supported},
    };
    return known;
}

} // namespace

std::optional<DocumentError::Cause> readOfficePart(
    const ZipPackage &package, const QByteArray &partName, XmlHandler &handler)
{
    XmlNamespaces namespaces(officeNamespaces());
    MarkupCompatibility compatibility(namespaces);
    return readXmlPart(package, partName, namespaces, handler, &compatibility);
}

std::optional<int> hexadecimalOf(std::optional<QByteArrayView> value)
{
    return integerOf(value, 16);
}

bool booleanOf(std::optional<QByteArrayView> value)
{
    return !value || !(*value == "0" || *value == "false" || *value == "off");
}
