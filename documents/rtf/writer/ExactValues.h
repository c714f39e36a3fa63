// SPDX-License-Identifier: MIT
// ExactValues collects, numbers and writes what RTF has no exact word for: the table \qbyexact of
// docs/rtf.md. Thread: one.  Owner: the writer of one document.
#pragma once

#include "platform/styled_text/TextAttributes.h"

#include <QByteArray>
#include <QHash>
#include <QString>

/// Each function gives the word that chooses the value, "\qbyfont1"; equal values share theirs.
class ExactValues {
public:
    QByteArray fontWord(const FontAttributes &font);
    QByteArray paragraphWord(const ParagraphStyle &style);
    QByteArray languageWord(const QString &tag);
    QByteArray fileWord(const QString &name);

    /// The table with a line for each value, empty where there is none.
    [[nodiscard]] QByteArray table() const;

private:
    QByteArray wordFor(const char *kind, const QByteArray &value);

    QHash<QByteArray, QHash<QByteArray, QByteArray>> m_words; ///< by kind and value
    QByteArray m_groups;
};
