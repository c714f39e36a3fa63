// SPDX-License-Identifier: MIT
#include "tests/text_statistics/TextsOfAllClasses.h"

#include "platform/segmentation/CharacterClasses.h"

#include <map>

TextRules rulesOf(int variant)
{
    QString locale = variant % 2 == 0 ? QStringLiteral("en_US") : QStringLiteral("fr_FR");
    return {.localeIdentifier = [locale] { return locale; },
        .minimumSentencesOfParagraph = variant / 4 % 3,
        .sentencesNeedTerminalPunctuation = variant / 2 % 2 == 1};
}

const std::vector<QString> &representatives()
{
    static const std::vector<QString> characters = [] {
        std::map<quint32, char32_t> found;
        for (char32_t character = 0; character < 0x110000; ++character) {
            const CharacterClasses classes = classesOf(character);
            const quint32 key = classes.flags() << 4 | static_cast<quint32>(classes.sentence());
            const bool isSupplementary = character > 0xFFFF;
            found.try_emplace(key << 1 | (isSupplementary ? 1U : 0U), character);
        }
        std::vector<QString> list;
        for (const auto &[key, character] : found)
            list.push_back(QString::fromUcs4(&character, 1));
        // Of classes that have others too.
        for (const char32_t character : U"'\"\u00AD\u200D\u0301\u05F3\u05F4\u2019\u30FC\uFF9E\u3002"
                                        U"\u1AA8\u104A\u0E33\u302A\u24C2\U0001F600\U0001F1E9\U0001F170") {
            if (character)
                list.push_back(QString::fromUcs4(&character, 1));
        }
        list.emplace_back(QChar(0xD800));
        list.emplace_back(QChar(0xDC00));
        return list;
    }();
    return characters;
}

QString randomOf(const std::vector<QString> &pieces, std::mt19937 &random, qsizetype length)
{
    QString text;
    std::uniform_int_distribution<size_t> index(0, pieces.size() - 1);
    while (text.size() < length)
        text += pieces[index(random)];
    return text;
}
