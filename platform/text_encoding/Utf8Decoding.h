// SPDX-License-Identifier: MIT
// UTF-8 at the speed of memory, by the widest vectors of the processor. What is not well-formed is left to
// EncodingConverter.
// Thread: any.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

/// The number of bytes before the first one above 127, or the length if there is none.
qsizetype asciiLength(QByteArrayView bytes);

/// The text of well-formed UTF-8 (RFC 3629), byte order marks included; absent if it is not well-formed.
/// Throws std::bad_alloc.
std::optional<QString> decodeUtf8(QByteArrayView bytes);
