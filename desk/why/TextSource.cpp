// SPDX-License-Identifier: MIT
#include "desk/why/TextSource.h"

#include "documents/loading/DocumentLoader.h"
#include "documents/loading/PasteboardText.h"
#include "platform/system/FileURL.h"

#include <QUrl>

#include <new>

namespace {

QUrl localFile(const QMimeData &data)
{
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            return url;
    }
    return {};
}

Pasteboard pasteboardOf(const QMimeData &data)
{
    Pasteboard::Forms forms;
    for (const char16_t *const type : {Pasteboard::flatRtfdType, Pasteboard::rtfType, Pasteboard::htmlType}) {
        const QString name = QString::fromUtf16(type);
        if (data.hasFormat(name))
            forms[name] = data.data(name);
    }
    if (data.hasText())
        forms[QStringLiteral("text/plain;charset=utf-8")] = data.text().toUtf8();
    return Pasteboard(std::move(forms));
}

QString memoryFailure()
{
    return causeText(FileError{FileError::Cause::NotEnoughMemory});
}

} // namespace

bool TextSource::canRead(const QMimeData &data)
{
    return !localFile(data).isEmpty() || !pasteboardOf(data).forms().empty();
}

void TextSource::readFile(const QUrl &file)
{
    const auto work = [path = pathOfFileURL(file)](const std::stop_token &stop) -> Outcome {
        try {
            Result<AttributedString, DocumentError> text =
                loadDocument(path, {.readsPdf = true, .stop = stop});
            return text ? Outcome(std::move(text).value()) : Outcome(causeText(text.error()));
        } catch (const std::bad_alloc &) {
            return memoryFailure();
        }
    };
    start(work, lastPathComponent(file));
}

void TextSource::read(const QMimeData &data)
{
    if (const QUrl file = localFile(data); !file.isEmpty()) {
        readFile(file);
        return;
    }
    const auto work = [pasteboard = pasteboardOf(data)](const std::stop_token &stop) -> Outcome {
        try {
            std::optional<AttributedString> text = readAttributedString(pasteboard, stop);
            return text ? Outcome(*std::move(text)) : Outcome(tr("there is no text that can be read"));
        } catch (const std::bad_alloc &) {
            return memoryFailure();
        }
    };
    start(work, {});
}

void TextSource::start(std::function<Outcome(const std::stop_token &)> work, const QString &name)
{
    m_work.reset();
    m_work.emplace(QStringLiteral("com.quillbay.desk.reading"), std::move(work));
    m_work->passResultTo([this, name](const Outcome &outcome) {
        m_work.reset();
        if (outcome)
            Q_EMIT finished(outcome.value(), name);
        else
            Q_EMIT failed(tr("%1: %2").arg(name.isEmpty() ? tr("Pasted text") : name, outcome.error()));
    });
}

void TextSource::cancel()
{
    m_work.reset();
}
