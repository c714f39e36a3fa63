// SPDX-License-Identifier: MIT
// FlatTextFormat is the layout of styled text as one block of bytes, the form in which the program that reads
// documents returns their text. FlatTextWriter writes it, FlatTextReader reads it; both run on the same
// machine, in the same version of the product.
// Thread: any; constants and values.
//
// The parts follow each other without gaps, in the machine's byte order:
//   Header
//   AttributesRecord, one for each distinct set of attributes
//   TabStopRecord, those of the first set of attributes, then those of the second …
//   RunRecord, one for each run
//   AttachmentRecord, one for each attachment
//   the lengths of the strings, 32 bits each
//   the text and then the strings, in UTF-16 code units
//   the contents of the attachments
#pragma once

#include <QtGlobal>

namespace FlatTextFormat {

inline constexpr quint32 magic = 0x51425954; // "QBYT"
inline constexpr quint32 version = 1;

struct Header {
    quint32 magic;
    quint32 version;
    quint32 textLength; ///< UTF-16 code units
    quint32 runCount;
    quint32 attributesCount;
    quint32 tabStopCount;
    quint32 attachmentCount;
    quint32 stringCount;
};

/// Strings are named by their index. All lengths are points.
struct AttributesRecord {
    double pointSize; // the font's fields are 0 where there is none
    double tracking;
    double baselineOffset;
    double firstLineHeadIndent;
    double headIndent;
    double tailIndent;
    double defaultTabInterval;
    double lineSpacing;
    double paragraphSpacingBefore;
    double paragraphSpacing;
    quint32 hasFont; ///< 0 or 1
    quint32 family; ///< a string
    quint32 weight;
    quint32 slant; ///< a FontSlant
    quint32 alignment; ///< a TextAlignment
    quint32 direction; ///< a WritingDirection
    quint32 language; ///< a string
    quint32 attachment; ///< its index plus 1; 0 for none
    quint32 tabStopCount;
    quint32 unused; ///< 0
};

struct TabStopRecord {
    double position;
    quint32 alignment; ///< a TabAlignment
    quint32 unused; ///< 0
};

struct RunRecord {
    quint32 start; ///< UTF-16 code units
    quint32 attributes; ///< an index
};

struct AttachmentRecord {
    quint64 contentsLength; ///< bytes
    quint32 fileName; ///< a string
    quint32 unused; ///< 0
};

// Padding would hold bytes that nobody has set.
static_assert(sizeof(Header) == 8 * sizeof(quint32));
static_assert(sizeof(AttributesRecord) == 10 * sizeof(double) + 10 * sizeof(quint32));
static_assert(sizeof(TabStopRecord) == sizeof(double) + 2 * sizeof(quint32));
static_assert(sizeof(RunRecord) == 2 * sizeof(quint32));
static_assert(sizeof(AttachmentRecord) == sizeof(quint64) + 2 * sizeof(quint32));

} // namespace FlatTextFormat
