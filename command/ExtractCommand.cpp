// SPDX-License-Identifier: MIT
// "quillbay extract": prints the text of documents, exactly as it is counted.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/FileNames.h"
#include "command/FirstLaunchStep.h"
#include "command/NamedDocument.h"
#include "documents/rtfd/RtfdReader.h"
#include "platform/files/FileContents.h"
#include "platform/system/StandardOutput.h"
#include "platform/system/SystemError.h"
#include "text_statistics/TextCounter.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <new>
#include <utility>

namespace {

struct ReadText {
    DocumentKind kind;
    QString text;
};

/// In the spelling of the shared MIME database.
QByteArray mimeTypeOf(DocumentKind kind)
{
    if (kind == DocumentKind::Markdown)
        return "text/markdown";
    return kind == DocumentKind::Latex ? QByteArray("text/x-tex") : mimeTypes(kind).first().toUtf8();
}

Result<ReadText, DocumentError> readNamedText(const QByteArray &name, const ReadAs &readAs)
{
    const ReadOptions readOptions = readOptionsFor(name, readAs);
    const bool isInput = name == standardInputName;
    if (!isInput && !readOptions.asText && isRtfdPackage(name)) {
        const Result<AttributedString, DocumentError> text = loadDocument(name, readOptions);
        return text ? Result<ReadText, DocumentError>(ReadText{DocumentKind::Rtfd, text.value().string()})
                    : text.error();
    }
    const Result<QByteArray, FileError> contents = readNamed(name);
    if (!contents)
        return DocumentError(contents.error());
    const QByteArray path = isInput ? QByteArray() : name;
    const Result<DocumentKind, DocumentError> kind = kindToReadAs(path, contents.value(), readOptions);
    if (!kind)
        return kind.error();
    const Result<AttributedString, DocumentError> text = readBytes(contents.value(), path, readOptions);
    if (!text)
        return text.error();
    return ReadText{kind.value(), text.value().string()};
}

QByteArray printableText(const QString &text)
{
    QByteArray printable;
    QByteArray piece;
    const QByteArray bytes = text.toUtf8().replace("\r\n", "\n");
    for (const char byte : bytes) {
        if (byte != '\n' && byte != '\t') {
            piece += byte;
            continue;
        }
        printable += printableName(std::exchange(piece, {})) + byte;
    }
    printable += printableName(piece);
    return printable.isEmpty() || printable.endsWith('\n') ? printable : printable + '\n';
}

class ExtractCommand {
public:
    ExtractCommand(bool wantsJson, const ReadAs &readAs)
        : m_wantsJson(wantsJson)
        , m_readAs(readAs)
        , m_isTerminal(::isatty(STDOUT_FILENO) == 1)
    {
    }

    /// The exit status.
    int run(const QByteArrayList &names);

private:
    void extract(const QByteArray &name);
    [[nodiscard]] QByteArray jsonOf(const QByteArray &name, const ReadText &document);
    void fail(const QByteArray &name, const QString &cause);

    const bool m_wantsJson;
    const ReadAs m_readAs;
    const bool m_isTerminal;
    TextCounter m_counter;
    bool m_hasFailed = false;
};

int ExtractCommand::run(const QByteArrayList &names)
{
    if (m_wantsJson)
        runFirstLaunchStep();
    for (const QByteArray &name : names) {
        // Every step allocates buffers as large as the document.
        try {
            extract(name);
        } catch (const std::bad_alloc &) {
            fail(name, causeText(FileError{FileError::Cause::NotEnoughMemory}));
        }
    }
    if (std::fflush(stdout) != 0)
        fail(CommandText::tr("standard output").toUtf8(), translatedSystemError(errno));
    return m_hasFailed ? 1 : 0;
}

void ExtractCommand::extract(const QByteArray &name)
{
    const Result<ReadText, DocumentError> document = readNamedText(name, m_readAs);
    if (!document) {
        fail(name, causeText(document.error()));
        return;
    }
    const QString &text = document.value().text;
    QByteArray output;
    if (m_wantsJson)
        output = jsonOf(name, document.value());
    else
        output = m_isTerminal ? printableText(text) : text.toUtf8();
    print(output);
}

QByteArray ExtractCommand::jsonOf(const QByteArray &name, const ReadText &document)
{
    const QString &text = document.text;
    const CountingRules rules = currentCountingRules();
    QByteArray json = '{' + jsonFileMembers(name) + ",\"type\":" + jsonName(mimeTypeOf(document.kind))
        + ",\"length\":" + QByteArray::number(text.size()) + ",\"text\":" + jsonName(text.toUtf8())
        + ",\"paragraphs\":[";
    qsizetype byteOffset = 0;
    forEachParagraph(text, [&](const Paragraph &paragraph) {
        const QByteArray number = QByteArray::number(paragraph.content(text).toUtf8().size());
        json += QByteArray(paragraph.start == 0 ? "" : ",")
            + "{\"offset\":" + QByteArray::number(paragraph.start)
            + ",\"length\":" + QByteArray::number(paragraph.contentLength)
            + ",\"byteOffset\":" + QByteArray::number(byteOffset) + ",\"byteLength\":" + number;
        const QBYWordCounterStats stats = m_counter.countParagraph(text, paragraph, rules.text);
        for (const StatisticRow &row : statisticTable) {
            if (row.statistic != Statistic::Lines) // of the whole text on paper
                json += QByteArray(",\"") + row.name + "\":" + QByteArray::number(stats.*row.count);
        }
        json += '}';
        byteOffset += QStringView(text).sliced(paragraph.start, paragraph.length).toUtf8().size();
    });
    return json + "]}\n";
}

void ExtractCommand::fail(const QByteArray &name, const QString &cause)
{
    m_hasFailed = true;
    reportDocumentFailure(name, cause);
}

} // namespace

int runExtractCommand(const CommandWords &words)
{
    ExtractCommand command(words.switches.contains("json"), ReadAs::fromWords(words));
    return command.run(words.operands.isEmpty() ? QByteArrayList{standardInputName} : words.operands);
}
