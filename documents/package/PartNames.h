// SPDX-License-Identifier: MIT
// PartNames finds the names of parts from the references between them. Reading the parts is left to
// ZipPackage.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// The name of the part at a relative reference (RFC 3986), without its fragment. Escapes of bytes are
/// resolved, and references above the top end there, as in a web browser. Empty if it has too many folders.
/// source: the name of the part that contains the reference; empty for the package itself.
QByteArray resolvePartName(const QByteArray &source, QByteArrayView reference);
