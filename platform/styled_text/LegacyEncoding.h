// SPDX-License-Identifier: MIT
// The encodings from before Unicode, told apart by how often which characters stand side by side.
// Thread: any.
#pragma once

#include <QByteArrayView>

/// The name of the likeliest, as ICU knows it; "windows-1252" where nothing speaks for any. Where one
/// encoding has all letters of another and more, it is named in the other's place. Looks at 64 KiB around the
/// first byte above 127, whose position is given.
const char *likeliestLegacyEncoding(QByteArrayView bytes, qsizetype above127);
