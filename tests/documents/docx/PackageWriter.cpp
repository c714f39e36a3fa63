// SPDX-License-Identifier: MIT
#include "tests/documents/docx/PackageWriter.h"

#include <array>

namespace {

constexpr quint32 localHeaderMark = 0x04034B50;
constexpr quint32 directoryHeaderMark = 0x02014B50;
constexpr quint32 directoryEndMark = 0x06054B50;
constexpr quint16 versionNeeded = 20;
constexpr quint16 deflated = 8;
constexpr quint16 newYear1980 = 0x21;

void append16(QByteArray &bytes, quint16 number)
{
    bytes.append(static_cast<char>(number));
    bytes.append(static_cast<char>(number >> 8));
}

void append32(QByteArray &bytes, quint32 number)
{
    append16(bytes, static_cast<quint16>(number));
    append16(bytes, static_cast<quint16>(number >> 16));
}

/// Without the length that qCompress() prepends and without the header and checksum of zlib.
QByteArray deflatedBytes(const QByteArray &bytes)
{
    if (bytes.isEmpty()) // qCompress() writes no header then
        return QByteArray("\x03\0", 2);
    return qCompress(bytes, 6).sliced(6).chopped(4);
}

/// The fields that the local header and the directory have in common.
QByteArray description(const ZipWriter::Entry &entry, quint32 storedLength)
{
    QByteArray bytes;
    append16(bytes, versionNeeded);
    append16(bytes, entry.isEncrypted ? 1 : 0);
    append16(bytes, entry.method == ZipWriter::Method::Deflated ? deflated : 0);
    append16(bytes, 0);
    append16(bytes, newYear1980);
    append32(bytes, zipChecksum(entry.contents));
    append32(bytes, storedLength);
    append32(bytes, entry.claimedLength.value_or(static_cast<quint32>(entry.contents.size())));
    append16(bytes, static_cast<quint16>(entry.name.size()));
    append16(bytes, 0);
    return bytes;
}

const QByteArray officeTypes("application/vnd.openxmlformats-officedocument.wordprocessingml.");

} // namespace

quint32 zipChecksum(const QByteArray &bytes)
{
    static const std::array<quint32, 256> table = [] {
        std::array<quint32, 256> remainders{};
        for (quint32 i = 0; i < remainders.size(); ++i) {
            quint32 remainder = i;
            for (int bit = 0; bit < 8; ++bit)
                remainder = (remainder >> 1) ^ ((remainder & 1) ? 0xEDB88320U : 0);
            remainders[i] = remainder;
        }
        return remainders;
    }();
    quint32 checksum = 0xFFFFFFFF;
    for (const char byte : bytes)
        checksum = table[(checksum ^ static_cast<unsigned char>(byte)) & 0xFF] ^ (checksum >> 8);
    return ~checksum;
}

QByteArray ZipWriter::archive() const
{
    QByteArray bytes;
    QByteArray directory;
    for (const Entry &entry : m_entries) {
        const QByteArray stored =
            entry.method == Method::Deflated ? deflatedBytes(entry.contents) : entry.contents;
        const QByteArray about = description(entry, static_cast<quint32>(stored.size()));
        append32(directory, directoryHeaderMark);
        append16(directory, versionNeeded);
        directory += about;
        append16(directory, 0);
        append16(directory, 0);
        append16(directory, 0);
        append32(directory, 0);
        append32(directory, static_cast<quint32>(bytes.size()));
        directory += entry.name;

        append32(bytes, localHeaderMark);
        bytes += about + entry.name + stored;
    }
    const auto start = static_cast<quint32>(bytes.size());
    bytes += directory;
    append32(bytes, directoryEndMark);
    append32(bytes, 0);
    append16(bytes, static_cast<quint16>(m_entries.size()));
    append16(bytes, static_cast<quint16>(m_entries.size()));
    append32(bytes, static_cast<quint32>(directory.size()));
    append32(bytes, start);
    append16(bytes, 0);
    return bytes;
}

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
