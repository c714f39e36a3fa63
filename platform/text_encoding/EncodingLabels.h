// SPDX-License-Identifier: MIT
// EncodingLabels knows the names under which pages, servers and clipboards speak of encodings.
// Thread: any.
#pragma once

#include <QByteArrayView>

/// The encoding that a label of the Encoding Standard stands for, by a name that ICU knows or johabEncoding;
/// null for every label that is not in the list, whatever ICU makes of it. Case and white space around it do
/// not matter. Differing from the standard,
///  - x-user-defined is windows-1252, as it is in a meta element;
///  - the encodings that browsers refuse to read for fear of scripts (ISO-2022-KR, HZ …) are read;
///  - UTF-32 and encodings of DOS, of the old Mac, of Taiwan and of Korea are read that browsers do not know;
///  - ISO-8859-16, which ICU lacks, is ISO-8859-2: only the commas of four letters become cedillas, and some
///    signs differ.
const char *encodingOfLabel(QByteArrayView label);
