// SPDX-License-Identifier: MIT
#include "documents/loading/RepeatedLoader.h"

#include "documents/loading/SandboxedReader.h"
#include "documents/rtfd/RtfdPackage.h"
#include "platform/files/FileContents.h"

Result<AttributedString, DocumentError> RepeatedLoader::load(
    const QByteArray &path, const std::stop_token &stop)
{
    return isRtfdPackage(path) ? loadPackage(path, stop) : loadFile(path, stop);
}

Result<AttributedString, DocumentError> RepeatedLoader::loadFile(
    const QByteArray &path, const std::stop_token &stop)
{
    const Result<QByteArray, FileError> contents = readFile(path);
    if (!contents)
        return DocumentError(contents.error());
    return readUnlessRemembered(path, contents.value(),
        [&](const QByteArray &bytes) { return readBytes(bytes, path, {.readsPdf = true, .stop = stop}); });
}

Result<AttributedString, DocumentError> RepeatedLoader::loadPackage(
    const QByteArray &path, const std::stop_token &stop)
{
    const Result<QByteArray, DocumentError> contents = flatRtfdOfPackage(path);
    if (!contents)
        return contents.error();
    return readUnlessRemembered(path, contents.value(), [&stop](const QByteArray &bytes) {
        return SandboxedReader::shared().read(DocumentKind::Rtfd, bytes, {.stop = stop});
    });
}

Result<AttributedString, DocumentError> RepeatedLoader::readUnlessRemembered(const QByteArray &path,
    const QByteArray &bytes,
    const std::function<Result<AttributedString, DocumentError>(const QByteArray &)> &read)
{
    if (remembers(path, bytes))
        return m_text;
    Result<AttributedString, DocumentError> text = read(bytes);
    if (bytes.size() > m_maxBytes)
        forget();
    else if (text)
        remember(path, bytes, text.value());
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
    *this = RepeatedLoader(m_maxBytes);
}
