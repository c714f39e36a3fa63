// SPDX-License-Identifier: MIT
// DocumentChooser is the desktop's file chooser for an open panel. Folders that are documents, such as rich
// text with attachments, are chosen like files, however the user opens them: by a double click, by the
// button, by the Return key, or by typing their names. Thread: main.  Owner: whoever shows it.
#pragma once

#include "platform/views/Desktop.h"

#include <QFileDialog>

class DocumentChooser : public QFileDialog {
    Q_OBJECT

public:
    explicit DocumentChooser(const OpenPanel &panel);

    /// Once the dialog has been accepted.
    [[nodiscard]] QList<QUrl> chosenUrls() const;

protected:
    void accept() override;

private:
    [[nodiscard]] bool isPackage(const QString &path) const;
    void choosePackage(const QString &path);

    const QStringList m_packageSuffixes;
    QList<QUrl> m_chosenUrls; // where they are not those that the dialog has selected
};
