// SPDX-License-Identifier: MIT
// Johab, the encoding of Korean from before Windows 95 that spells its syllables out (KS X 1001, annex 3).
// ICU has no converter for it. Thread: any.
#pragma once

#include <QByteArrayView>
#include <QString>

inline constexpr char johabEncoding[] = "Johab";

/// Hanja and signs are the same as in EUC-KR, in another order, and are read as that.
QString textOfJohab(QByteArrayView bytes);
