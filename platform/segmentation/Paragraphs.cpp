// SPDX-License-Identifier: MIT
#include "platform/segmentation/Paragraphs.h"

bool isParagraphSeparator(char16_t unit)
{
    return unit == u'\n' || unit == u'\r' || unit == u'\u2029';
}

bool isLineEnd(char16_t unit)
{
    return isParagraphSeparator(unit) || unit == u'\u2028';
}

Paragraph paragraphAt(QStringView text, qsizetype start)
{
    const char16_t *units = text.utf16();
    qsizetype end = start;
    while (end < text.size() && !isParagraphSeparator(units[end]))
        ++end;
    const qsizetype contentLength = end - start;
    if (end < text.size()) {
        const bool isPair = units[end] == u'\r' && end + 1 < text.size() && units[end + 1] == u'\n';
        end += isPair ? 2 : 1;
    }
    return {start, contentLength, end - start};
}
