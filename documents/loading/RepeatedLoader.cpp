// SPDX-License-Identifier: MIT
#include "documents/loading/RepeatedLoader.h"

#include "documents/loading/PackageBytes.h"
#include "documents/rtfd/RtfdReader.h"
#include "platform/files/FileContents.h"

using LoadResult = Result<AttributedString, DocumentError>;

LoadResult RepeatedLoader::load(const QByteArray &path)
{
    return isRtfdPackage(path) ? loadPackage(path) : loadFile(path);
}

LoadResult RepeatedLoader::loadFile(const QByteArray &path)
{
    const Result<QByteArray, FileError> contents = readFile(path);
    if (!contents)
        return DocumentError(contents.error());
    const QByteArray &bytes = contents.value();
    if (bytes.size() > m_mostKept) {
        forget();
        return documentFromFile(path, bytes);
    }
    if (remembers(path, bytes))
        return m_text;
    LoadResult text = documentFromFile(path, bytes);
    if (text)
        remember(path, bytes, text.value());
    return text;
}

LoadResult RepeatedLoader::loadPackage(const QByteArray &path)
{
    const std::optional<QByteArray> bytes = bytesOfPackage(path, m_mostKept);
    if (bytes && remembers(path, *bytes))
        return m_text;
    forget();
    LoadResult text = loadDocument(path);
    // It may have changed between the two readings.
    if (text && bytes && bytesOfPackage(path, m_mostKept) == bytes)
        remember(path, *bytes, text.value());
    return text;
}

bool RepeatedLoader::remembers(const QByteArray &path, const QByteArray &bytes) const
{
    return m_remembers && path == m_path && bytes == m_bytes;
}

void RepeatedLoader::remember(const QByteArray &path, const QByteArray &bytes, const AttributedString &text)
{
    m_remembers = true;
    m_path = path;
    m_bytes = bytes;
    m_text = text;
}

void RepeatedLoader::forget()
{
    *this = RepeatedLoader(m_mostKept);
}
