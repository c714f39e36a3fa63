// SPDX-License-Identifier: MIT
// How likely a text is in each encoding in which every byte is a character.
// Thread: any.
#pragma once

#include "platform/text_encoding/EncodingEvidence.h"

#include <QByteArrayView>

#include <vector>

/// One for each language of each encoding. Takes time proportional to the number of different pairs of bytes,
/// and to the sample's length.
std::vector<EncodingEvidence> singleByteEvidence(QByteArrayView sample);
