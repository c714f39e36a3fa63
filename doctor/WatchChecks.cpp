// SPDX-License-Identifier: MIT
// The checks of what watched files need: the kernel's events, and speech.
#include "doctor/Checks.h"
#include "doctor/InotifyUse.h"
#include "platform/system/OwnedDescriptor.h"
#include "platform/system/SystemError.h"
#include "preferences/QBYUserDefaultsController.h"
#include "speech/ApplicationExtension.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <sys/inotify.h>

#include <cerrno>

namespace {

/// 0, or why no further folder can be watched.
int watchError()
{
    const OwnedDescriptor events(::inotify_init1(IN_CLOEXEC));
    if (!events)
        return errno;
    return ::inotify_add_watch(events.get(), "/", IN_CLOSE_WRITE) >= 0 ? 0 : errno;
}

QString causeOf(int error)
{
    switch (error) {
    case EMFILE:
        return Doctor::tr("no instance of inotify is left");
    case ENOSPC:
        return Doctor::tr("no watch of inotify is left");
    default:
        return systemErrorText(error);
    }
}

QString remedyForWatchError(int error)
{
    const bool isInstance = error == EMFILE;
    return Doctor::tr("Raise the limit: run \"sudo sysctl %1\", and write that setting into a file in "
                      "/etc/sysctl.d to keep it.")
        .arg(isInstance ? QStringLiteral("fs.inotify.max_user_instances=1024")
                        : QStringLiteral("fs.inotify.max_user_watches=1048576"));
}

} // namespace

Finding checkWatches()
{
    const InotifyUse use = readInotifyUse();
    const QString numbers =
        Doctor::tr("At least %1 of %2 watches and %3 of %4 instances of inotify are in use.")
            .arg(use.watches)
            .arg(use.maxWatches)
            .arg(use.instances)
            .arg(use.maxInstances);
    if (const int error = watchError())
        return limitedFinding(Doctor::tr("The kernel does not report changes of further files (%1), so they "
                                         "are checked every two seconds.")
                                  .arg(causeOf(error))
                + u' ' + numbers,
            remedyForWatchError(error));
    return goodFinding(Doctor::tr("The kernel reports changes of watched files.") + u' ' + numbers);
}

Finding checkSpeech()
{
    const QString command = QBYExtension::speechLaunchPath();
    const bool isWanted = QBYUserDefaultsController::shouldSayWordCountOutloudOnSaveInWatchFileMode();
    const auto missing = [isWanted](const QString &text, const QString &remedy) {
        return isWanted ? limitedFinding(text, remedy) : noteFinding(text, remedy);
    };
    if (!QFileInfo(command).isExecutable())
        return missing(Doctor::tr("Counts of watched files cannot be spoken, because there is no command %1.")
                           .arg(command),
            Doctor::tr("Install the package quillbay, or another one with that command."));
    // Another package's command may speak by other means.
    const bool isOurs = QFileInfo(QFileInfo(command).canonicalFilePath()).fileName() == u"quillbay-say";
    const bool hasVoice = !QStandardPaths::findExecutable(QStringLiteral("spd-say")).isEmpty()
        || !QStandardPaths::findExecutable(QStringLiteral("espeak-ng")).isEmpty();
    if (isOurs && !hasVoice)
        return missing(
            Doctor::tr(
                "Counts of watched files cannot be spoken, because no program for speech is installed."),
            Doctor::tr("Install the package speech-dispatcher or espeak-ng."));
    return goodFinding(isWanted
            ? Doctor::tr("Counts of watched files are spoken by %1.").arg(command)
            : Doctor::tr("Counts of watched files can be spoken by %1; this is switched off.").arg(command));
}
