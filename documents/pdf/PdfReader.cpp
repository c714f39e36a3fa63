// SPDX-License-Identifier: MIT
#include "documents/pdf/PdfReader.h"

#include "documents/pdf/PdfReaderProcess.h"

#include <QFile>
#include <QFileInfo>

#include <new>

namespace {

using namespace std::chrono_literals;

constexpr qint64 mebibyte = 1'048'576;
constexpr auto timePerMebibyte = 10s;

PdfReaderOrder orderFor(qsizetype size, const PdfLimits &limits)
{
    const std::chrono::seconds time = limits.time + timePerMebibyte * (size / mebibyte);
    return {.processorTime = time,
        .realTime = time * limits.timeout,
        .memory = limits.memory,
        .length = limits.length};
}

} // namespace

QByteArray pdfReaderProgram()
{
    const QString folder = QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
    const QString name = QStringLiteral("/quillbay-pdf-reader");
    const QString installed = folder + QStringLiteral("/" LIBEXEC_FROM_BIN) + name;
    return QFile::encodeName(QFileInfo(folder + name).isExecutable() ? folder + name : installed);
}

Result<AttributedString, DocumentError> readPdf(
    QByteArrayView bytes, const PdfLimits &limits, const QByteArray &program)
{
    if (bytes.isEmpty())
        return DocumentError(DocumentError::Cause::WrongKind, DocumentKind::Pdf);
    try {
        auto process = PdfReaderProcess::start(program, bytes, orderFor(bytes.size(), limits));
        if (!process)
            return DocumentError(process.error(), DocumentKind::Pdf);
        Result<QString, DocumentError::Cause> text = std::move(process).value().readText();
        if (!text)
            return DocumentError(text.error(), DocumentKind::Pdf);
        return AttributedString(std::move(text).value());
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Pdf);
    }
}
