// SPDX-License-Identifier: MIT
// MimeCharset knows the encodings that the charset parameter of a MIME type names (RFC 2046).
// Thread: any.
#pragma once

#include <QByteArray>

/// By a name that ICU knows, which lives as long as the process; null for names that IANA does not list, and
/// for encodings that this installation of ICU lacks. Case does not matter.
const char *encodingOfMimeCharset(const QByteArray &charset);
