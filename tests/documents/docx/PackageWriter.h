// SPDX-License-Identifier: MIT
// PackageWriter writes Word documents, valid and invalid ones.
// Thread: any; values.
#pragma once

#include "tests/documents/package/ZipWriter.h"

#include <QByteArray>

#include <vector>

/// A Word document with these parts, with the names and relationships that Word uses. Empty parts are left
/// out.
struct WordPackage {
    QByteArray body = {}; ///< what is within w:body
    QByteArray styles = {}; ///< what is within w:styles
    QByteArray numbering = {}; ///< what is within w:numbering
    QByteArray settings = {}; ///< what is within w:settings
    QByteArray fontScheme = {}; ///< what is within a:fontScheme of the theme
    QByteArray footnotes = {}; ///< what is within w:footnotes
    QByteArray endnotes = {}; ///< what is within w:endnotes
    QByteArray figures = {}; ///< what is within Properties of docProps/app.xml
    QByteArray wordNamespace = "http://schemas.openxmlformats.org/wordprocessingml/2006/main";
    QByteArray relationshipsNamespace = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
    QByteArray mainType = "application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml";
    QByteArray rootAttributes = "mc:Ignorable='w14 wp14'"; ///< of w:document

    struct Part {
        QByteArray identifier; ///< of its relationship from the main part
        QByteArray relationshipType; ///< the last segment of the URI
        QByteArray target; ///< as in the relationship
        QByteArray contentType;
        QByteArray contents = {};
        bool isExternal = false; ///< has a relationship, but is not in the package
    };
    std::vector<Part> others = {};
    ZipWriter::Method method = ZipWriter::Method::Stored;

    /// The main part with its XML declaration and namespaces.
    [[nodiscard]] QByteArray mainPart() const;
    [[nodiscard]] ZipWriter writer() const;
    [[nodiscard]] QByteArray bytes() const { return writer().archive(); }
};
