// SPDX-License-Identifier: MIT
// OdtWriter writes OpenDocument texts, as packages and as flat files.
// Thread: any; values.
#pragma once

#include "tests/documents/package/ZipWriter.h"

#include <QByteArray>

/// Empty members are left out.
struct OpenDocumentText {
    QByteArray body = {}; ///< what is within office:text
    QByteArray automaticStyles = {}; ///< what is within office:automatic-styles
    QByteArray styles = {}; ///< what is within office:styles
    QByteArray fontFaces = {}; ///< what is within office:font-face-decls
    QByteArray masterStyles = {}; ///< what is within office:master-styles
    QByteArray settings = {}; ///< what is within office:settings
    QByteArray manifest = {}; ///< what is within manifest:manifest
    QByteArray mimeType = "application/vnd.oasis.opendocument.text";
    ZipWriter::Method method = ZipWriter::Method::Stored;

    [[nodiscard]] QByteArray flat() const;
    [[nodiscard]] QByteArray package() const { return writer().archive(); }
    [[nodiscard]] ZipWriter writer() const;
};
