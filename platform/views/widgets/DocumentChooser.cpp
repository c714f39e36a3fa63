// SPDX-License-Identifier: MIT
#include "platform/views/widgets/DocumentChooser.h"

#include "platform/system/FileURL.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMimeDatabase>

#include <algorithm>

namespace {

/// In the form of QFileDialog::setNameFilter(): the name patterns of the MIME types and of all types derived
/// from them. All files if there are none.
QString fileFilter(const QStringList &mimeTypes)
{
    QStringList patterns;
    for (const QMimeType &type : QMimeDatabase().allMimeTypes()) {
        const bool isWanted = std::any_of(
            mimeTypes.begin(), mimeTypes.end(), [&](const QString &wanted) { return type.inherits(wanted); });
        if (isWanted)
            patterns.append(type.globPatterns());
    }
    // The chooser would split patterns at blanks.
    patterns.removeIf(
        [](const QString &pattern) { return pattern.contains(u' ') || pattern.contains(u')'); });
    patterns.removeDuplicates();
    if (patterns.isEmpty())
        patterns.append(QStringLiteral("*"));
    return QCoreApplication::translate("DocumentChooser", "Documents (%1)").arg(patterns.join(u' '));
}

/// The folder or the nearest one above it that exists; without one the user's, as the bus starts programs in
/// no useful folder.
QString startFolder(const QUrl &folder)
{
    QString existing = QFile::decodeName(pathOfFileURL(folder));
    while (!existing.isEmpty() && !QFileInfo(existing).isDir())
        existing.truncate(existing.lastIndexOf(u'/'));
    return existing.isEmpty() ? QDir::homePath() : existing;
}

} // namespace

DocumentChooser::DocumentChooser(const OpenPanel &panel)
    : m_packageSuffixes(panel.packageSuffixes)
{
    setFileMode(panel.allowsMultipleSelection ? ExistingFiles : ExistingFile);
    setDirectory(startFolder(panel.folder));
    // Names without an extension match no pattern.
    if (!panel.allowedFileTypes.isEmpty())
        setNameFilters({fileFilter(panel.allowedFileTypes + panel.otherFileTypes),
            QCoreApplication::translate("DocumentChooser", "All files (*)")});
    setOption(HideNameFilterDetails);
    // After a double click Qt's chooser, and that of most desktops, enters the folder first.
    connect(this, &QFileDialog::directoryEntered, this, [this](const QString &folder) {
        if (isPackage(folder))
            choosePackage(folder);
    });
}

QList<QUrl> DocumentChooser::chosenUrls() const
{
    return m_chosenUrls.isEmpty() ? selectedUrls() : m_chosenUrls;
}

bool DocumentChooser::isPackage(const QString &path) const
{
    // After a trailing slash QFileInfo would see an empty name.
    const QFileInfo file(QDir::cleanPath(path));
    return m_packageSuffixes.contains(file.suffix(), Qt::CaseInsensitive) && file.isDir();
}

void DocumentChooser::choosePackage(const QString &path)
{
    m_chosenUrls = {QUrl::fromLocalFile(QDir::cleanPath(path))};
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): not QFileDialog's, which would enter the folder
    QDialog::accept();
}

void DocumentChooser::accept()
{
    const QStringList selected = selectedFiles();
    const auto isDocument = [this](
                                const QString &path) { return isPackage(path) || QFileInfo(path).isFile(); };
    const bool hasPackage =
        std::ranges::any_of(selected, [this](const QString &path) { return isPackage(path); });
    if (!hasPackage || !std::ranges::all_of(selected, isDocument)) {
        QFileDialog::accept(); // enters a folder
        return;
    }
    m_chosenUrls.clear();
    for (const QString &path : selected)
        m_chosenUrls.append(QUrl::fromLocalFile(QDir::cleanPath(path)));
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): not QFileDialog's, which would enter the folder
    QDialog::accept();
}
