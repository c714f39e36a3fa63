// SPDX-License-Identifier: MIT
// ParagraphText gathers the text of one paragraph until it is known how the paragraph is set, which may be as
// late as at its end.
// Thread: any; values.
#pragma once

#include "documents/docx/RunFormat.h"
#include "platform/styled_text/AttributedString.h"

#include <QString>

#include <vector>

class ParagraphText {
public:
    void append(QStringView text, const RunFormat &format);
    /// Puts a space between the text so far and the text that follows, unless one of them is missing or has
    /// white space there.
    void separate() { m_isSeparated = true; }
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
    bool m_isSeparated = false;
};
