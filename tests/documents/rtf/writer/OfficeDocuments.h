// SPDX-License-Identifier: MIT
// OfficeDocuments has an office program convert documents, in the world of the test.
// Thread: main.
#pragma once

#include <QByteArray>
#include <QString>

namespace OfficeDocuments {

/// Whether the program is there.
bool areConvertible();

/// The document in another format; fails the test where there is none.
/// from, to: suffixes, "rtf"; a suffix may be followed by a colon and a filter's name.
QByteArray converted(const QByteArray &document, const char *from, const char *to);

} // namespace OfficeDocuments
