// SPDX-License-Identifier: MIT
// The checks of what the programs themselves need, with or without a desktop.
#include "doctor/Checks.h"
#include "documents/loading/SandboxedReader.h"
#include "platform/locale/CurrentLocale.h"
#include "platform/sandbox/Landlock.h"
#include "platform/system/SystemError.h"
#include "preferences/QBYUserDefaultsController.h"
#include "text_statistics/CountingRules.h"

#include <QFile>
#include <QLocale>
#include <QSysInfo>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <clocale>

namespace {

QByteArray folderOf(const QByteArray &path)
{
    return path.first(path.lastIndexOf('/'));
}

bool exists(const QByteArray &path)
{
    struct stat status { };
    return ::stat(path.constData(), &status) == 0;
}

/// Why a file or a folder cannot be written; 0 if it can.
int writeError(const QByteArray &path)
{
    return ::access(path.constData(), W_OK) == 0 ? 0 : errno;
}

/// What must be writable so that preferences can be stored: the nearest folder that exists, and the file.
int storageError(const QByteArray &file)
{
    QByteArray folder = folderOf(file);
    while (!exists(folder) && folder.count('/') > 1)
        folder = folderOf(folder);
    if (const int error = writeError(folder))
        return error;
    return exists(file) ? writeError(file) : 0;
}

} // namespace

Finding checkVersions()
{
    const QString desktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP");
    const QString session = qEnvironmentVariable("XDG_SESSION_TYPE");
    QString text = Doctor::tr("This is Quillbay %1 with Qt %2 on %3, Linux %4.")
                       .arg(QStringLiteral(QUILLBAY_VERSION), QString::fromLatin1(qVersion()),
                           QSysInfo::prettyProductName(), QSysInfo::kernelVersion());
    if (!desktop.isEmpty() || !session.isEmpty())
        text += u' '
            + Doctor::tr("The desktop is %1, the session %2.")
                  .arg(desktop.isEmpty() ? Doctor::tr("unknown") : desktop,
                      session.isEmpty() ? Doctor::tr("unknown") : session);
    return goodFinding(text);
}

Finding checkLocale()
{
    const char *const wanted = wantedLocaleName();
    const QString identifier = currentLocaleIdentifier();
    const QString letters = currentTextRules().areLoneUnitsCounted()
        ? Doctor::tr("A letter that stands alone counts as a word.")
        : Doctor::tr("A letter that stands alone counts as a word only if it is a, I, O or x.");
    const bool isWanted = !isCLocale(wanted);
    const QByteArray currentName = std::setlocale(LC_MESSAGES, nullptr);
    if (isWanted && currentName == "C")
        return limitedFinding(
            Doctor::tr("The locale %1 is not installed; words are counted by the rules of %2.")
                    .arg(QString::fromUtf8(wanted), identifier)
                + u' ' + letters,
            Doctor::tr("Install the locale: choose it in the list of \"sudo dpkg-reconfigure locales\"."));
    const QString rules =
        Doctor::tr("Words are counted by the rules of the locale %1.").arg(identifier) + u' ' + letters;
    if (!isWanted)
        return noteFinding(
            rules, Doctor::tr("To count by the rules of your language, set LANG to its locale."));
    return goodFinding(rules);
}

Finding checkPreferences()
{
    const UserDefaults &suite = QBYUserDefaultsController::sharedUserDefaults();
    const QString file = QFile::decodeName(suite.path());
    const auto value = suite.readObjectForKey(QStringLiteral("QBYAnyPreference"));
    if (!value)
        return brokenFinding(Doctor::tr("The preferences in %1 cannot be read: %2. The default rules apply.")
                                 .arg(file, value.error().reason),
            value.error().kind == SuiteFault::Kind::Broken
                ? Doctor::tr("Run \"quillbay preferences --reset-all\", which puts the damaged file aside.")
                : Doctor::tr("Check the permissions of the file and of its folders."));
    if (const int error = storageError(suite.path()))
        return limitedFinding(
            Doctor::tr("Preferences cannot be stored in %1: %2.").arg(file, systemErrorText(error)),
            Doctor::tr("Make the file and its folder writable."));
    return goodFinding(exists(suite.path())
            ? Doctor::tr("The preferences in %1 can be read and written.").arg(file)
            : Doctor::tr("There are no preferences yet; the first count writes them to %1.").arg(file));
}

Finding checkSandbox()
{
    const auto text = SandboxedReader::shared().read(DocumentKind::Rtf, "{\\rtf1 One two three.}");
    if (!text || text.value().string() != u"One two three.")
        return brokenFinding(
            Doctor::tr("Documents other than plain text cannot be read: %1.")
                .arg(text ? Doctor::tr("a test document has lost its text") : causeText(text.error())),
            Doctor::tr("Install Quillbay again. If that does not help, use a kernel of the distribution: the "
                       "sandbox needs its filter of system calls (seccomp)."));
    const int landlock = Landlock::kernelVersion();
    if (landlock == 0)
        return limitedFinding(
            Doctor::tr("Documents are read in a sandbox, which a filter of system calls keeps up alone: the "
                       "kernel has no Landlock, or it is switched off."),
            Doctor::tr("Start the kernel with \"landlock\" in its parameter lsm=."));
    return goodFinding(
        Doctor::tr("Documents are read in a sandbox (Landlock %1 and a filter of system calls).")
            .arg(landlock));
}
