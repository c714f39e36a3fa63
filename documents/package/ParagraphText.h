// SPDX-License-Identifier: MIT
// ParagraphText collects the text of a paragraph until its style is known, which may be as late as its end.
// Thread: one at a time.
#pragma once

#include "documents/package/ScriptFormats.h"
#include "platform/styled_text/AttributedString.h"

#include <QString>

#include <vector>

class ParagraphText {
public:
    void append(QStringView text, const ScriptFormats &format);
    /// Puts a space between the text so far and the text that follows, unless one of them is missing or has
    /// white space there.
    void requireSpace() { m_needsSpace = true; }
    [[nodiscard]] bool isEmpty() const { return m_text.isEmpty(); }

    void appendTo(AttributedStringBuilder &builder, const ParagraphStyle &style) const;

private:
    struct Piece {
        qsizetype start;
        CharacterFormat format;
    };
    void appendPiece(QStringView text, const CharacterFormat &format);

    QString m_text;
    std::vector<Piece> m_pieces; // neighbours differ
    bool m_needsSpace = false;
};
