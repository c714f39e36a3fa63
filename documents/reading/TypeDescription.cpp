// SPDX-License-Identifier: MIT
#include "documents/reading/TypeDescription.h"

#include "platform/files/FileContents.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace {

constexpr qint64 maxTypeFileSize = 1'048'576;

/// Of the file of a type in the database: the comment without a language is the English one. QMimeType itself
/// has the comment only in the language of the process.
QString englishComment(const QString &typeName)
{
    const QString path = QStandardPaths::locate(
        QStandardPaths::GenericDataLocation, QStringLiteral("mime/%1.xml").arg(typeName));
    if (path.isEmpty())
        return {};
    const Result<QByteArray, FileError> contents =
        readFile(QFile::encodeName(path), {.maxSize = maxTypeFileSize, .memory = maxTypeFileSize * 4});
    if (!contents)
        return {};
    constexpr QByteArrayView start("<comment>");
    const qsizetype at = contents.value().indexOf(start);
    const qsizetype end = contents.value().indexOf("</comment>", at + start.size());
    if (at < 0 || end < 0)
        return {};
    QString comment = QString::fromUtf8(contents.value().sliced(at + start.size(), end - at - start.size()));
    return comment.replace(QStringLiteral("&amp;"), QStringLiteral("&")).simplified();
}

bool isVowel(QChar letter)
{
    return QStringView(u"AEIOUaeiou").contains(letter);
}

bool isAbbreviation(QStringView word)
{
    return word.size() > 1 && std::ranges::none_of(word, [](QChar character) { return character.isLower(); });
}

bool beginsWithVowelSound(QStringView word)
{
    const QChar first = word.front();
    if (isAbbreviation(word)) {
        const bool isWord = word.size() > 2 && !isVowel(first) && isVowel(word[1]);
        return !isWord && QStringView(u"AEFHILMNORSX").contains(first);
    }
    const bool isYu =
        word.startsWith(u"uni", Qt::CaseInsensitive) || word.startsWith(u"us", Qt::CaseInsensitive);
    return isVowel(first) && !isYu;
}

} // namespace

QString withArticle(const QString &description)
{
    // The name of a type may explain itself: "Tar archive (gzip-compressed)".
    const QString name = description.section(QStringLiteral(" ("), 0, 0);
    const auto isLast = [last = name.section(u' ', -1)](const char16_t *word) {
        return last.compare(QStringView(word), Qt::CaseInsensitive) == 0;
    };
    static constexpr std::array uncountable{u"audio", u"video", u"bytecode", u"code", u"data", u"information",
        u"keys", u"settings", u"subtitles", u"messages", u"bookmarks", u"files", u"results", u"metrics"};
    if (description.isEmpty() || std::ranges::any_of(uncountable, isLast))
        return description;
    const QString firstWord = description.section(u' ', 0, 0).section(u'-', 0, 0);
    const bool isAn = !firstWord.isEmpty() && beginsWithVowelSound(firstWord);
    return (isAn ? QStringLiteral("an ") : QStringLiteral("a ")) + description;
}

QString typeDescription(const QMimeType &type)
{
    if (!type.isValid() || type.isDefault())
        return QStringLiteral("a binary file");
    const QString comment = englishComment(type.name());
    return comment.isEmpty() ? QStringLiteral("a file of the type %1").arg(type.name())
                             : withArticle(comment);
}
