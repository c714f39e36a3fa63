// SPDX-License-Identifier: MIT
#include "documents/pdf/UnmappedText.h"

#include <QString>

namespace {

constexpr qsizetype oneIn = 20;

bool isInNoText(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Other_Control || category == QChar::Other_NotAssigned
        || category == QChar::Other_Surrogate;
}

} // namespace

bool isUnmapped(QStringView text)
{
    qsizetype characters = 0;
    qsizetype inNoText = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        char32_t character = text[i].unicode();
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            character = QChar::surrogateToUcs4(text[i], text[i + 1]);
            ++i;
        }
        if (QChar::isSpace(character))
            continue;
        ++characters;
        inNoText += isInNoText(character) ? 1 : 0;
    }
    return inNoText * oneIn > characters;
}
