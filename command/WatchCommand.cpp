// SPDX-License-Identifier: MIT
#include "command/WatchCommand.h"

#include "command/CommandWords.h"
#include "command/NamedDocument.h"
#include "command/ServiceCommand.h"
#include "platform/pasteboard/Selection.h"
#include "platform/services/PasteboardWire.h"
#include "platform/system/FileURL.h"
#include "platform/system/SystemError.h"

#include <cerrno>
#include <filesystem>

#include <sys/stat.h>

namespace {

constexpr FailureReport report = FailureReport::StandardErrorAndNotification;

constexpr char watchHelp[] = R"(Usage: quillbay watch FILE…
       quillbay watch --clipboard

Opens a small window for each FILE, whose counts follow every save, or brings
forward the window that FILE has. Watches text, RTF and RTFD, web pages and Word
documents; other files are passed over. A failure is told in a notification of
the desktop as well as on standard error.

  --clipboard  the files that were copied last in a file manager
  -h, --help   show this and leave

Exit status: 0 once the windows are there, 1 if a FILE does not exist or none can
be watched, 2 for wrong usage.
)";

/// From the root of the file system on, without empty and "." components. ".." stays: what it leads to behind
/// a symbolic link, only the file system knows.
QByteArray absolutePath(const QByteArray &name)
{
    std::error_code error;
    const std::string path = std::filesystem::absolute(name.toStdString(), error).string();
    QByteArray absolute;
    for (const QByteArray &component : QByteArray::fromStdString(path).split('/')) {
        if (!component.isEmpty() && component != ".")
            absolute += '/' + component;
    }
    return absolute.isEmpty() ? "/" : absolute;
}

/// A list of URLs (RFC 2483) of the files that exist; the others are told.
QByteArray listOfFiles(const QByteArrayList &names, bool &isComplete)
{
    QByteArray list;
    for (const QByteArray &name : names) {
        struct stat status { };
        if (::stat(name.constData(), &status) != 0) {
            tellDocumentFailure(name, systemErrorText(errno));
            isComplete = false;
            continue;
        }
        list += fileURLOfPath(absolutePath(name)).toEncoded() + "\r\n";
    }
    return list;
}

int send(const Pasteboard &pasteboard)
{
    return deliverServiceMessage(QStringLiteral("watchTheTextFileService"), pasteboard, report);
}

int watchCopiedFiles()
{
    const Result<Pasteboard, SelectionFailure> files =
        readSelection(SelectionName::Clipboard, SelectionContent::Files, PasteboardWire::maxPasteboardSize);
    return files ? send(files.value()) : tellFailure(causeText(files.error()), report);
}

int watch(const QByteArrayList &names)
{
    bool isComplete = true;
    const QByteArray list = listOfFiles(names, isComplete);
    if (list.isEmpty())
        return 1;
    const int status = send(Pasteboard({{QString::fromUtf16(Pasteboard::urlListType), list}}));
    return isComplete ? status : 1;
}

} // namespace

int runWatchCommand(int wordCount, char **words)
{
    const std::optional<CommandWords> wanted = CommandWords::parse("watch", {"clipboard"}, wordCount, words);
    if (!wanted)
        return wrongUsageStatus;
    if (wanted->wantsHelp())
        return printed(watchHelp);
    const bool fromClipboard = wanted->switches.contains("clipboard");
    if (wanted->operands.isEmpty() != fromClipboard)
        return tellWrongUsage(
            "watch", fromClipboard ? "either --clipboard or files, not both" : "no file named");
    return fromClipboard ? watchCopiedFiles() : watch(wanted->operands);
}
