// SPDX-License-Identifier: MIT
// The check of the entries in the context menus of file managers.
#include "doctor/Checks.h"

#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>

#include <array>

namespace {

struct FileManager {
    const char *name; ///< as users know it
    const char *program;
    /// What brings the entries: a data file below a folder such as /usr/share, or a module below the folder
    /// of the libraries, which ends in ".so".
    const char *file;
};

constexpr std::array fileManagers{
    FileManager{"Caja", "caja", "caja/extensions-2.0/libquillbay-caja.so"},
    FileManager{"Dolphin", "dolphin", "kio/servicemenus/com.quillbay.Quillbay.desktop"},
    FileManager{"Nautilus", "nautilus", "nautilus/extensions-4/libquillbay-nautilus.so"},
    FileManager{"Nemo", "nemo", "nemo/actions/quillbay-watch.nemo_action"},
    FileManager{"PCManFM", "pcmanfm", "file-manager/actions/quillbay-watch.desktop"},
    FileManager{"PCManFM-Qt", "pcmanfm-qt", "file-manager/actions/quillbay-watch.desktop"},
    FileManager{"Thunar", "thunar", "thunarx-3/libquillbay-thunar.so"},
};

bool isInstalled(const FileManager &manager)
{
    return !QStandardPaths::findExecutable(QString::fromLatin1(manager.program)).isEmpty();
}

bool hasEntries(const FileManager &manager)
{
    const QString file = QString::fromLatin1(manager.file);
    if (file.endsWith(u".so")) // each loads modules from its own folder only, beside Qt's libraries
        return QFileInfo::exists(QLibraryInfo::path(QLibraryInfo::LibrariesPath) + u'/' + file);
    return !QStandardPaths::locate(QStandardPaths::GenericDataLocation, file).isEmpty();
}

} // namespace

Finding checkFileManagers()
{
    QStringList with;
    QStringList without;
    for (const FileManager &manager : fileManagers) {
        if (isInstalled(manager))
            (hasEntries(manager) ? with : without).append(QString::fromLatin1(manager.name));
    }
    const QLocale locale;
    if (!without.isEmpty())
        return noteFinding(Doctor::tr("The menus of these file managers have no entries of Quillbay: %1.")
                               .arg(locale.createSeparatedList(without)),
            Doctor::tr("Install the Debian package of Quillbay and start the file manager again."));
    if (with.isEmpty())
        return noteFinding(Doctor::tr("No file manager is installed that can have entries of Quillbay."));
    return goodFinding(Doctor::tr("The menus of these file managers have entries of Quillbay: %1.")
                           .arg(locale.createSeparatedList(with)));
}
