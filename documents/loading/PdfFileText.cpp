// SPDX-License-Identifier: MIT
#include "documents/loading/PdfFileText.h"

#include "documents/loading/SandboxedReader.h"
#include "platform/files/FileContents.h"
#include "platform/logging/LogChannel.h"
#include "platform/system/FileURL.h"

namespace {

/// Empty where the file cannot be read. Never blocks, unlike opening a pipe by its name.
QByteArray contentsOf(const QUrl &url)
{
    Result<QByteArray, FileError> contents = readFile(pathOfFileURL(url));
    return contents ? std::move(contents).value() : QByteArray();
}

} // namespace

std::optional<AttributedString> QBYExtension::attributedStringFromPDFFileURL(const QUrl &url)
{
    Result<AttributedString, DocumentError> text =
        SandboxedReader::shared().read(DocumentKind::Pdf, contentsOf(url));
    if (text)
        return std::move(text).value();
    LogChannel::standard().error(u"No pages in the pdf");
    return std::nullopt;
}
