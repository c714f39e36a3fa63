// SPDX-License-Identifier: MIT
#include "documents/reading/TypeDescription.h"

#include "platform/files/FileContents.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace {

constexpr qint64 maxTypeFileSize = 1'048'576;

/// Of the file of a type in the database, where the comment without a language is the English one. QMimeType
/// itself has the comment only in the language of the process, which may be one that our texts do not have.
QString comment(const QString &typeName, const QByteArray &startTag)
{
    const QString path = QStandardPaths::locate(
        QStandardPaths::GenericDataLocation, QStringLiteral("mime/%1.xml").arg(typeName));
    if (path.isEmpty())
        return {};
    const Result<QByteArray, FileError> contents =
        readFile(QFile::encodeName(path), {.maxSize = maxTypeFileSize, .memory = maxTypeFileSize * 4});
    if (!contents)
        return {};
    const qsizetype at = contents.value().indexOf(startTag);
    const qsizetype start = at + startTag.size();
    const qsizetype end = at < 0 ? -1 : contents.value().indexOf("</comment>", start);
    if (end < 0)
        return {};
    QString text = QString::fromUtf8(contents.value().sliced(start, end - start));
    return text.replace(QStringLiteral("&amp;"), QStringLiteral("&")).simplified();
}

/// The language of our texts, as "de".
QString languageOfTexts()
{
    //: The code of your language, as "de": that of the names of file types.
    return QCoreApplication::translate("documents/reading", "en");
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
        return QCoreApplication::translate("documents/reading", "a binary file");
    const QString language = languageOfTexts();
    if (language != u"en") {
        const QByteArray startTag = "<comment xml:lang=\"" + language.toUtf8() + "\">";
        if (const QString translated = comment(type.name(), startTag); !translated.isEmpty())
            return translated;
    }
    const QString english = comment(type.name(), "<comment>");
    return english.isEmpty()
        ? QCoreApplication::translate("documents/reading", "a file of the type %1").arg(type.name())
        : withArticle(english);
}
