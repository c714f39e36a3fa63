// SPDX-License-Identifier: MIT
#include "platform/segmentation/Paragraphs.h"

namespace {

// Written for the compiler's vector instructions: no branch, and no type wider than a code unit.
template <qsizetype blockLength>
bool hasSeparator(const char16_t *units)
{
    char16_t found = 0;
    for (qsizetype i = 0; i < blockLength; ++i) {
        const char16_t unit = units[i];
        const auto isOne = static_cast<char16_t>((unit == u'\n') | (unit == u'\r') | (unit == u'\u2029'));
        found = static_cast<char16_t>(found | isOne);
    }
    return found != 0;
}

} // namespace

bool isParagraphSeparator(char16_t unit)
{
    return unit == u'\n' || unit == u'\r' || unit == u'\u2029';
}

bool isLineEnd(char16_t unit)
{
    return isParagraphSeparator(unit) || unit == u'\u2028';
}

qsizetype lineEndLength(QStringView text, qsizetype position)
{
    const char16_t *units = text.utf16();
    return units[position] == u'\r' && position + 1 < text.size() && units[position + 1] == u'\n' ? 2 : 1;
}

Paragraph paragraphAt(QStringView text, qsizetype start)
{
    const char16_t *units = text.utf16();
    qsizetype end = start;
    while (end + 32 <= text.size() && !hasSeparator<32>(units + end))
        end += 32;
    while (end + 8 <= text.size() && !hasSeparator<8>(units + end))
        end += 8;
    while (end < text.size() && !isParagraphSeparator(units[end]))
        ++end;
    const qsizetype contentLength = end - start;
    if (end < text.size())
        end += lineEndLength(text, end);
    return {start, contentLength, end - start};
}
