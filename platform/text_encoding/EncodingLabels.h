// SPDX-License-Identifier: MIT
// EncodingLabels maps the names that pages, servers and clipboards use for encodings to ICU's names.
// Thread: any.
#pragma once

#include <QByteArrayView>

/// The encoding of a label of the Encoding Standard: a name ICU knows, or johabEncoding. Null for labels that
/// are not listed, even if ICU knows them. Ignores case and surrounding white space. Differs from the
/// standard:
///  - x-user-defined is windows-1252, as in a meta element;
///  - encodings that browsers refuse for security reasons (ISO-2022-KR, HZ …) are read;
///  - UTF-32 and some encodings of DOS, the old Mac, Taiwan and Korea are read, which browsers do not know;
///  - ISO-8859-16, which ICU lacks, is read as ISO-8859-2: the commas below four letters become cedillas,
///    and some signs differ.
const char *encodingOfLabel(QByteArrayView label);
