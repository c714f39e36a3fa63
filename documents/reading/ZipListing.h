// SPDX-License-Identifier: MIT
// ZipListing lists what a ZIP archive says of its entries without unpacking any, so that the kind of a
// package can be told from outside. The readers of packages have a library for the rest.
// Thread: any; a value.
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QByteArrayView>

#include <optional>

struct ZipListing {
    /// At most maxZipEntries, in lower case, with "/" between folders and none at the start.
    QByteArrayList names;
    /// The content of a first entry "mimetype" that is not compressed, by which a package declares its type.
    QByteArray declaredType;
};

inline constexpr qsizetype maxZipEntries = 20'000;

/// Absent unless the bytes begin as a ZIP archive does. An archive that has been cut off is listed as far as
/// it goes. Takes time proportional to the length.
std::optional<ZipListing> listZip(QByteArrayView bytes);
