// SPDX-License-Identifier: MIT
// The paragraphs and hard lines of a text, by their separators only.
// Thread: any.
#pragma once

#include <QStringView>

/// LF, CR and U+2029; CR LF together are one separator.
inline bool isParagraphSeparator(char16_t unit)
{
    return unit == u'\n' || unit == u'\r' || unit == u'\u2029';
}

/// A paragraph separator or U+2028.
bool isLineEnd(char16_t unit);

/// How many code units the line end at a position has: 2 for CR LF, otherwise 1.
qsizetype lineEndLength(QStringView text, qsizetype position);

/// One paragraph of a text: its start, and its length without and with its separator, in UTF-16 code units.
/// The last paragraph may lack a separator; an empty line is an empty paragraph.
struct Paragraph {
    qsizetype start;
    qsizetype contentLength;
    qsizetype length;

    [[nodiscard]] QStringView content(QStringView text) const { return text.sliced(start, contentLength); }
    [[nodiscard]] qsizetype end() const { return start + length; }
};

/// The paragraph that starts at a position (0 to the text's length - 1).
Paragraph paragraphAt(QStringView text, qsizetype start);

/// Calls yield(Paragraph) for every paragraph of the text, first to last. There is no empty paragraph after a
/// final separator.
template <typename Yield>
void forEachParagraph(QStringView text, Yield &&yield)
{
    for (qsizetype start = 0; start < text.size();) {
        const Paragraph paragraph = paragraphAt(text, start);
        yield(paragraph);
        start = paragraph.end();
    }
}
