// SPDX-License-Identifier: MIT
#include "desk/WatchFiles.h"

#include "platform/system/FileURL.h"
#include "platform/system/SystemError.h"
#include "platform/views/widgets/DocumentChooser.h"
#include "watching/FileTypes.h"

#include <QFile>
#include <QProcess>

#include <cerrno>
#include <cstdio>
#include <vector>

#include <unistd.h>

QByteArrayList chooseFilesToWatch()
{
    DocumentChooser chooser(QBYExtension::openPanelForTextFilesAllowMultipleSelection(true));
    QByteArrayList names;
    if (chooser.exec() == QDialog::Accepted) {
        for (const QUrl &url : chooser.chosenUrls())
            names.append(pathOfFileURL(url));
    }
    return names;
}

namespace {

/// Lies beside this program, wherever it is installed; the application may not exist yet.
QByteArray commandFile()
{
    const QByteArray self = QFile::encodeName(QFile::symLinkTarget(QStringLiteral("/proc/self/exe")));
    return self.first(self.lastIndexOf('/') + 1) + "quillbay";
}

} // namespace

void startWatchCommand(const QByteArrayList &fileNames)
{
    QStringList words{QStringLiteral("watch"), QStringLiteral("--")};
    for (const QByteArray &name : fileNames)
        words.append(QString::fromLatin1(fileURLOfPath(name).toEncoded())); // any bytes
    QProcess::startDetached(QFile::decodeName(commandFile()), words);
}

void becomeWatchCommand(const QByteArrayList &fileNames)
{
    QByteArrayList words{commandFile(), "watch", "--"};
    words += fileNames;
    std::vector<char *> arguments;
    for (QByteArray &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    ::execv(arguments.front(), arguments.data());
    std::fprintf(stderr, "quillbay-desk: %s: cannot be started: %s; install Quillbay again\n",
        words.constFirst().constData(), qPrintable(systemErrorText(errno)));
}
