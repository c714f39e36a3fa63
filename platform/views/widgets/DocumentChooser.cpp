// SPDX-License-Identifier: MIT
#include "platform/views/widgets/DocumentChooser.h"

#include "platform/views/widgets/FileFilter.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

DocumentChooser::DocumentChooser(const OpenPanel &panel)
    : m_packageSuffixes(panel.packageSuffixes)
{
    setFileMode(panel.allowsMultipleSelection ? ExistingFiles : ExistingFile);
    setDirectory(QDir::home()); // a program that the bus starts is nowhere in particular
    if (!panel.allowedFileTypes.isEmpty())
        setNameFilter(fileFilterOf(panel.allowedFileTypes));
    setOption(HideNameFilterDetails);
    // A double click has Qt's chooser and those of most desktops enter the folder first.
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
    // Behind a closing slash QFileInfo would see an empty name.
    const QFileInfo file(QDir::cleanPath(path));
    return m_packageSuffixes.contains(file.suffix(), Qt::CaseInsensitive) && file.isDir();
}

void DocumentChooser::choosePackage(const QString &path)
{
    m_chosenUrls = {QUrl::fromLocalFile(QDir::cleanPath(path))};
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
    QDialog::accept();
}
