// SPDX-License-Identifier: MIT
// FormatWords turns fonts, languages and paragraph styles into RTF control words, and collects the font
// table. Values that the control words cannot express exactly are left to ExactValues.
// Thread: one.  Owner: RtfWriter, for one document.
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

    /// The words for a run of text; they begin with \plain.
    QByteArray wordsFor(const std::optional<FontAttributes> &font, const QString &language);

    /// The font table; empty if no text names a font.
    [[nodiscard]] QByteArray table() const;

private:
    qsizetype indexOf(const QString &family);
    QByteArray wordsFor(const FontAttributes &font);
    QByteArray wordsFor(const QString &language);

    ExactValues &m_exactValues;
    QHash<QString, qsizetype> m_indices; ///< by family
    QHash<QString, QByteArray> m_languageWords;
    QByteArray m_groups;
};

/// The words for a paragraph; they begin with \pard. The document must begin with defaultTabWord().
QByteArray paragraphWords(const ParagraphStyle &style, ExactValues &exactValues);

/// \deftab with the default tab interval of ParagraphStyle.
QByteArray defaultTabWord();
