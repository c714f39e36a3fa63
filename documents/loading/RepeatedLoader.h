// SPDX-License-Identifier: MIT
// RepeatedLoader loads a document as DocumentLoader does, again and again. While the bytes stay the same, it
// returns the text that it has made of them before.
// Thread: one at a time.  Owner: a follower of the document.
#pragma once

#include "documents/loading/DocumentLoader.h"

#include <QByteArray>

#include <functional>

/// Remembers the last text and the bytes that it was made of. Every load reads all bytes; times and sizes of
/// files are not trusted.
class RepeatedLoader {
public:
    /// Bytes, those of all files of a package together. The text of a larger document is not remembered, so
    /// that memory stays bounded.
    static constexpr qint64 maxRememberedBytes = qint64{16} * 1024 * 1024;

    explicit RepeatedLoader(qint64 maxBytes = maxRememberedBytes)
        : m_maxBytes(maxBytes)
    {
    }

    /// path: bytes in any encoding. stop: as of ReadOptions.
    Result<AttributedString, DocumentError> load(const QByteArray &path, const std::stop_token &stop = {});
    /// Frees the text.
    void forget();

private:
    Result<AttributedString, DocumentError> loadFile(const QByteArray &path, const std::stop_token &stop);
    Result<AttributedString, DocumentError> loadPackage(const QByteArray &path, const std::stop_token &stop);
    /// read: called where the bytes are not those of the last time.
    Result<AttributedString, DocumentError> readUnlessRemembered(const QByteArray &path,
        const QByteArray &bytes,
        const std::function<Result<AttributedString, DocumentError>(const QByteArray &)> &read);
    [[nodiscard]] bool remembers(const QByteArray &path, const QByteArray &bytes) const;
    void remember(const QByteArray &path, const QByteArray &bytes, const AttributedString &text);

    qint64 m_maxBytes;
    bool m_remembers = false;
    QByteArray m_path; // the kind may depend on its name
    QByteArray m_bytes;
    AttributedString m_text;
};
