// SPDX-License-Identifier: MIT
// JohabText decodes Johab, a Korean encoding from before Windows 95 that composes syllables from letters (KS
// X 1001, annex 3). ICU has no converter for it.
// Thread: any.
#pragma once

#include <QByteArrayView>
#include <QString>

inline constexpr char johabEncoding[] = "Johab";

/// Johab has the hanja and signs of EUC-KR in another order. Bytes that are no character become U+FFFD.
QString textOfJohab(QByteArrayView bytes);
