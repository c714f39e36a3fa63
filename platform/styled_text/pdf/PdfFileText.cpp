// SPDX-License-Identifier: MIT
#include "platform/styled_text/pdf/PdfFileText.h"

#include "platform/files/FileContents.h"
#include "platform/logging/LogChannel.h"

#include <QBuffer>
#include <QFile>
#include <QPdfDocument>
#include <QPdfSelection>

namespace {

/// Empty where the file cannot be read. Never waits, as opening a pipe by its name would.
QByteArray contentsOf(const QUrl &url)
{
    if (!url.isLocalFile())
        return {};
    Result<QByteArray, FileError> contents = readFile(QFile::encodeName(url.toLocalFile()));
    return contents ? std::move(contents).value() : QByteArray();
}

} // namespace

std::optional<AttributedString> QBYExtension::attributedStringFromPDFFileURL(const QUrl &url)
{
    QByteArray contents = contentsOf(url);
    QBuffer file(&contents);
    QPdfDocument document;
    if (file.open(QIODevice::ReadOnly) && !contents.isEmpty())
        document.load(&file);
    if (document.status() != QPdfDocument::Status::Ready || document.pageCount() == 0) {
        LogChannel::standard().error(u"No pages in the pdf");
        return std::nullopt;
    }
    AttributedStringBuilder text;
    for (int page = 0; page < document.pageCount(); ++page)
        text.append(document.getAllText(page).text(), {});
    return text.build();
}
