// SPDX-License-Identifier: MIT
// The MIME types that stand for the kinds of documents.
// Thread: any.
#pragma once

#include <QStringView>

namespace FileTypeNames {

inline constexpr QStringView folder = u"inode/directory"; ///< of rich text with attachments
inline constexpr QStringView richText = u"application/rtf";
inline constexpr QStringView text = u"text/plain";
inline constexpr QStringView wordDocument =
    u"application/vnd.openxmlformats-officedocument.wordprocessingml.document";

/// The suffix of a folder of rich text with attachments, in any case: the MIME database knows folders only as
/// folders.
inline constexpr QStringView richTextPackageSuffix = u"rtfd";

} // namespace FileTypeNames
