// SPDX-License-Identifier: MIT
#include "documents/loading/PdfText.h"

#include <QChar>

namespace {

constexpr qsizetype maxShare = 20; // one in so many

bool isNoCharacter(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Other_Control || category == QChar::Other_NotAssigned
        || category == QChar::Other_Surrogate;
}

} // namespace

std::optional<DocumentError::Cause> faultOfPdfText(QStringView text)
{
    if (text.trimmed().isEmpty())
        return DocumentError::Cause::NoText;
    return isUnmapped(text) ? std::optional(DocumentError::Cause::UnmappedText) : std::nullopt;
}

bool isUnmapped(QStringView text)
{
    qsizetype characters = 0;
    qsizetype unmapped = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        char32_t character = text[i].unicode();
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            character = QChar::surrogateToUcs4(text[i], text[i + 1]);
            ++i;
        }
        if (QChar::isSpace(character))
            continue;
        ++characters;
        unmapped += isNoCharacter(character) ? 1 : 0;
    }
    return unmapped * maxShare > characters;
}
