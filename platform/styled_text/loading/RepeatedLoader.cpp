// SPDX-License-Identifier: MIT
#include "platform/styled_text/loading/RepeatedLoader.h"

#include "platform/files/FileContents.h"
#include "platform/styled_text/loading/PackageDigest.h"

#include <QCryptographicHash>

using LoadResult = Result<AttributedString, LoadError>;

LoadResult RepeatedLoader::load(const QByteArray &path)
{
    return isRtfdPackage(path) ? loadPackage(path) : loadFile(path);
}

LoadResult RepeatedLoader::loadFile(const QByteArray &path)
{
    const Result<QByteArray, FileError> contents = readFile(path);
    if (!contents)
        return LoadError(contents.error());
    const QByteArray &bytes = contents.value();
    if (bytes.size() > m_mostKept) {
        forget();
        return documentFromFile(path, bytes);
    }
    const QByteArray digest = QCryptographicHash::hash(bytes, QCryptographicHash::Blake2b_256);
    if (remembers(path, digest))
        return m_text;
    LoadResult text = documentFromFile(path, bytes);
    if (text)
        remember(path, digest, text.value());
    return text;
}

LoadResult RepeatedLoader::loadPackage(const QByteArray &path)
{
    const QByteArray digest = digestOfPackage(path, m_mostKept);
    if (remembers(path, digest))
        return m_text;
    forget();
    LoadResult text = loadDocument(path);
    // It may have changed between the two readings.
    if (text && !digest.isEmpty() && digestOfPackage(path, m_mostKept) == digest)
        remember(path, digest, text.value());
    return text;
}

bool RepeatedLoader::remembers(const QByteArray &path, const QByteArray &digest) const
{
    return !m_digest.isEmpty() && digest == m_digest && path == m_path;
}

void RepeatedLoader::remember(const QByteArray &path, const QByteArray &digest, const AttributedString &text)
{
    m_path = path;
    m_digest = digest;
    m_text = text;
}

void RepeatedLoader::forget()
{
    *this = RepeatedLoader(m_mostKept);
}
