// SPDX-License-Identifier: MIT
// EpubSpine finds the pages of an electronic book in their reading order (EPUB Open Container Format and
// Package Document). Reading the pages is left to EpubReader.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "documents/package/ZipPackage.h"
#include "platform/system/Result.h"

#include <QByteArray>

#include <vector>

/// The file that every book has.
inline constexpr char epubContainerPart[] = "META-INF/container.xml";

/// The name of the part to which another one (source; empty for the package itself) refers. The part may be
/// missing.
QByteArray partAt(const ZipPackage &package, const QByteArray &source, const QByteArray &reference);

/// The names of the parts with the pages, each once; all of them are in the package. Fails as Encrypted if
/// one of them or the package document is, and as Damaged if a part is missing or there is no reading order.
Result<std::vector<QByteArray>, DocumentError::Cause> pagesOfEpub(const ZipPackage &package);
