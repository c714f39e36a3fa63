// SPDX-License-Identifier: MIT
// FontWords says fonts and languages in RTF, and keeps the font table.
// Thread: one.  Owner: the writer of one document.
#pragma once

#include "platform/styled_text/TextAttributes.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>

class ExactValues;

class FontWords {
public:
    explicit FontWords(ExactValues &exactValues)
        : m_exactValues(exactValues)
    {
    }

    /// From \plain on.
    QByteArray wordsFor(const std::optional<FontAttributes> &font, const QString &language);

    /// The font table, empty where no text names a font.
    [[nodiscard]] QByteArray table() const;

private:
    qsizetype indexOf(const QString &family);
    QByteArray wordsFor(const FontAttributes &font);
    QByteArray wordsFor(const QString &language);

    ExactValues &m_exactValues;
    QHash<QString, qsizetype> m_indices; ///< of families
    QHash<QString, QByteArray> m_languageWords;
    QByteArray m_groups;
};
