// SPDX-License-Identifier: MIT
#include "documents/package/ParagraphText.h"

void ParagraphText::append(QStringView text, const ScriptFormats &format)
{
    if (text.isEmpty())
        return;
    if (m_needsSpace && !m_text.isEmpty() && !m_text.back().isSpace() && !text.front().isSpace())
        appendPiece(u" ", format.ascii());
    m_needsSpace = false;
    while (!text.isEmpty()) {
        const ScriptFormats::Stretch stretch = format.stretchAt(text);
        appendPiece(text.first(stretch.length), *stretch.format);
        text = text.sliced(stretch.length);
    }
}

void ParagraphText::appendPiece(QStringView text, const CharacterFormat &format)
{
    if (m_pieces.empty() || !(m_pieces.back().format == format))
        m_pieces.push_back({m_text.size(), format});
    m_text.append(text);
}

void ParagraphText::appendTo(AttributedStringBuilder &builder, const ParagraphStyle &style) const
{
    TextAttributes attributes;
    attributes.paragraphStyle = style;
    for (size_t i = 0; i < m_pieces.size(); ++i) {
        const Piece &piece = m_pieces[i];
        const qsizetype end = i + 1 < m_pieces.size() ? m_pieces[i + 1].start : m_text.size();
        attributes.font = piece.format.font;
        attributes.language = piece.format.language;
        builder.append(QStringView(m_text).sliced(piece.start, end - piece.start), attributes);
    }
}
