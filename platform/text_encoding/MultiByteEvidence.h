// SPDX-License-Identifier: MIT
// How likely a text is in each East Asian encoding, in which most characters take two bytes.
// Thread: any.
#pragma once

#include "platform/text_encoding/EncodingEvidence.h"

#include <QByteArrayView>

#include <vector>

/// One for each encoding. Takes time proportional to the sample's length.
std::vector<EncodingEvidence> multiByteEvidence(QByteArrayView sample);
