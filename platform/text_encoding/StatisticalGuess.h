// SPDX-License-Identifier: MIT
// What uchardet takes a text for. Its models of languages know long texts well; on a few words it often has
// no answer, and it knows nothing of DOS in the West, of Ukrainian or of Johab. Thread: any.
#pragma once

#include <QByteArrayView>

/// By a name that ICU knows, or null.
const char *statisticalGuess(QByteArrayView sample);
