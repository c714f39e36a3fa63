// SPDX-License-Identifier: MIT
// OfficeDocuments converts documents with an office program in the environment of the test.
// Thread: main.
#pragma once

#include <QByteArray>
#include <QString>

namespace OfficeDocuments {

/// Whether the program is installed.
bool areConvertible();

/// The document in another format; fails the test if the conversion fails.
/// from, to: suffixes, such as "rtf", optionally followed by a colon and the name of a filter.
QByteArray convert(const QByteArray &document, const char *from, const char *to);

} // namespace OfficeDocuments
