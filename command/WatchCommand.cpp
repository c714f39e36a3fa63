// SPDX-License-Identifier: MIT
#include "command/WatchCommand.h"

#include "command/CommandWords.h"
#include "command/NamedDocument.h"
#include "command/ServiceCommand.h"

#include <cerrno>
#include <cstring>
#include <filesystem>

#include <sys/stat.h>

namespace {

constexpr char helpText[] = R"(Usage: quillbay watch FILE…

Opens a small window for each FILE, whose counts follow every save, or brings
forward the window that FILE has. Watches text, RTF and RTFD, web pages and Word
documents; other files are passed over. A failure is told in a notification of
the desktop as well as on standard error.

  -h, --help  show this and leave

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
            tellDocumentFailure(name, QString::fromLocal8Bit(std::strerror(errno)));
            isComplete = false;
            continue;
        }
        list += "file://" + absolutePath(name).toPercentEncoding("/") + "\r\n";
    }
    return list;
}

int watch(const QByteArrayList &names)
{
    bool isComplete = true;
    const QByteArray list = listOfFiles(names, isComplete);
    if (list.isEmpty())
        return 1;
    const int status = sendServiceRequest(QStringLiteral("watchTheTextFileService"),
        Pasteboard({{QString::fromUtf16(Pasteboard::urlListType), list}}),
        FailureReport::StandardErrorAndNotification);
    return isComplete ? status : 1;
}

} // namespace

int runWatchCommand(int wordCount, char **words)
{
    const std::optional<CommandWords> wanted = CommandWords::parse("watch", {}, wordCount, words);
    if (!wanted)
        return wrongUsageStatus;
    if (wanted->wantsHelp())
        return printed(helpText);
    if (wanted->operands.isEmpty())
        return tellWrongUsage("watch", "no file named");
    return watch(wanted->operands);
}
