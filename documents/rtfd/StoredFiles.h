// SPDX-License-Identifier: MIT
// StoredFiles gives attachments names under which their files can lie beside TXT.rtf on every file system:
// their own where they can, substitutes where not. Thread: one.  Owner: the writer of one RTFD.
#pragma once

#include "platform/styled_text/TextAttributes.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <utility>
#include <vector>

class StoredFiles {
public:
    StoredFiles();

    /// The name for an attachment, the same for copies of it; no two names differ in case only.
    QString nameFor(const Attachment &attachment);

    struct File {
        QString name;
        QByteArray contents;
    };
    /// In the order in which they were named.
    [[nodiscard]] const std::vector<File> &files() const { return m_files; }

private:
    using Identity = std::pair<const char *, std::pair<qsizetype, QString>>;

    [[nodiscard]] bool take(const QString &name);
    QString freeName(const QString &ownName);

    std::vector<File> m_files;
    QHash<Identity, QString> m_names; ///< by where the contents lie, their size, and the own name
    QSet<QString> m_taken; ///< folded
    qsizetype m_lastNumber = 0; ///< of a substitute
};
