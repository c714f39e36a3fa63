// SPDX-License-Identifier: MIT
// BookWriter writes electronic books (EPUB), valid and invalid ones.
// Thread: any; values.
#pragma once

#include "tests/documents/package/ZipWriter.h"

#include <QByteArray>

#include <vector>

struct BookWriter {
    struct Page {
        QByteArray name; ///< of the part, relative to the package document
        QByteArray body; ///< the content of the body element, or the whole part if it begins with "<?"
        QByteArray reference = {}; ///< in the manifest; the name if empty
        QByteArray inManifest = "media-type='application/xhtml+xml'"; ///< attributes of its item
        QByteArray inSpine = "linear='yes'"; ///< attributes of its itemref; without one if empty
        bool isMissing = false; ///< in the package
    };

    std::vector<Page> pages = {};
    QByteArray folder = "OEBPS/"; ///< of the package document
    QByteArray mimeType = "application/epub+zip"; ///< without the part of that name if empty
    QByteArray items = {}; ///< more elements of the manifest
    QByteArray spine = {}; ///< more elements of the spine
    QByteArray encryption = {}; ///< the content of META-INF/encryption.xml; without it if empty
    QByteArray documentType = {}; ///< before the root of the package document
    ZipWriter::Method method = ZipWriter::Method::Deflated;

    [[nodiscard]] ZipWriter writer() const;
    [[nodiscard]] QByteArray bytes() const { return writer().archive(); }
};
