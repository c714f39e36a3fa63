// SPDX-License-Identifier: MIT
// RepeatedLoader loads a document as DocumentLoader does, again and again: as long as its bytes stay the
// same, the text made of them is handed on once more instead of being made anew. Thread: one at a time.
// Owner: whoever follows a document.
#pragma once

#include "documents/loading/DocumentLoader.h"

#include <QByteArray>

/// Remembers the last text and the bytes that it was made of. All bytes are read at every loading; neither
/// times nor sizes are relied on.
class RepeatedLoader {
public:
    /// Bytes, those of all files of a package together. The text of a larger document is not kept but made
    /// anew each time, so that memory stays bounded.
    static constexpr qint64 largestKept = 16 * 1024 * 1024;

    explicit RepeatedLoader(qint64 mostKept = largestKept)
        : m_mostKept(mostKept)
    {
    }

    /// path: bytes in any encoding.
    Result<AttributedString, DocumentError> load(const QByteArray &path);
    /// Frees the text.
    void forget();

private:
    Result<AttributedString, DocumentError> loadFile(const QByteArray &path);
    Result<AttributedString, DocumentError> loadPackage(const QByteArray &path);
    [[nodiscard]] bool remembers(const QByteArray &path, const QByteArray &bytes) const;
    void remember(const QByteArray &path, const QByteArray &bytes, const AttributedString &text);

    qint64 m_mostKept;
    bool m_remembers = false;
    QByteArray m_path; // its name is part of what tells the kind
    QByteArray m_bytes;
    AttributedString m_text;
};
