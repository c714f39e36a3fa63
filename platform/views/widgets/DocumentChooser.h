// SPDX-License-Identifier: MIT
// DocumentChooser is the desktop's file chooser for an open panel. Folders that are documents, such as rich
// text with attachments, are chosen like files: by double click, button, Return key or typed name.
// Thread: main.  Owner: WidgetDesktop, while it is open.
#pragma once

#include "platform/views/Desktop.h"

#include <QFileDialog>

class DocumentChooser : public QFileDialog {
    Q_OBJECT

public:
    explicit DocumentChooser(const OpenPanel &panel);

    /// Valid once the dialog has been accepted.
    [[nodiscard]] QList<QUrl> chosenUrls() const;

protected:
    void accept() override;

private:
    [[nodiscard]] bool isPackage(const QString &path) const;
    void choosePackage(const QString &path);

    const QStringList m_packageSuffixes;
    QList<QUrl> m_chosenUrls; // packages; empty: those that the dialog has selected
};
