// SPDX-License-Identifier: MIT
// ExactValues collects, numbers and writes the values that RTF's own words cannot express exactly: the table
// \qbyexact of docs/rtf.md. RtfExactValues reads it.
// Thread: one.  Owner: RtfWriter, for one document.
#pragma once

#include "platform/styled_text/TextAttributes.h"

#include <QByteArray>
#include <QHash>
#include <QString>

/// Each function returns the word that selects the value, such as "\qbyfont1". Equal values share a word.
class ExactValues {
public:
    QByteArray fontWord(const FontAttributes &font);
    QByteArray paragraphWord(const ParagraphStyle &style);
    QByteArray languageWord(const QString &tag);
    QByteArray fileWord(const QString &name);

    /// The table, with a line for each value; empty without values.
    [[nodiscard]] QByteArray table() const;

private:
    QByteArray wordFor(const char *kind, const QByteArray &value);

    QHash<QByteArray, QHash<QByteArray, QByteArray>> m_words; ///< by kind and value
    QByteArray m_groups;
};
