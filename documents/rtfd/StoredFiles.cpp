// SPDX-License-Identifier: MIT
#include "documents/rtfd/StoredFiles.h"

#include "documents/rtfd/FlatFormat.h"

#include <algorithm>

namespace {

constexpr qsizetype longestName = 255; // bytes, on the usual file systems
constexpr qsizetype longestSuffix = 8;

bool isUsual(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    case QChar::Separator_Space:
        return character == U' ';
    default:
        return character > 127
            || !QStringLiteral("/\\:*?\"<>|").contains(QChar(static_cast<char16_t>(character)));
    }
}

/// Whether every file system takes the name, and no program the file for a hidden one.
bool isUsual(const QString &name)
{
    const auto isAtEdge = [&](char16_t unit) {
        return name.startsWith(QChar(unit)) || name.endsWith(QChar(unit));
    };
    if (name.isEmpty() || name.size() > longestName || name.toUtf8().size() > longestName
        || !name.isValidUtf16() || isAtEdge(u'.') || isAtEdge(u' '))
        return false;
    const QList<uint> characters = name.toUcs4();
    return std::all_of(
        characters.begin(), characters.end(), [](uint character) { return isUsual(char32_t(character)); });
}

/// The end of the name from its last full stop on, empty where it is not short and of ASCII letters and
/// digits.
QString suffixOf(const QString &name)
{
    const QString suffix = name.sliced(name.lastIndexOf(u'.') + 1);
    const bool isUsualSuffix = !suffix.isEmpty() && suffix.size() < name.size()
        && suffix.size() <= longestSuffix && std::all_of(suffix.begin(), suffix.end(), [](QChar character) {
               return character.unicode() < 128 && character.isLetterOrNumber();
           });
    return isUsualSuffix ? u'.' + suffix : QString();
}

} // namespace

StoredFiles::StoredFiles()
{
    m_taken.insert(QString::fromLatin1(FlatFormat::textName).toCaseFolded());
}

/// Whether the name was free; it no longer is.
bool StoredFiles::take(const QString &name)
{
    const QString folded = name.normalized(QString::NormalizationForm_C).toCaseFolded();
    if (m_taken.contains(folded))
        return false;
    m_taken.insert(folded);
    return true;
}

QString StoredFiles::freeName(const QString &ownName)
{
    if (isUsual(ownName) && take(ownName))
        return ownName;
    const QString suffix = suffixOf(ownName);
    for (;;) {
        QString name = QStringLiteral("attachment-") + QString::number(++m_lastNumber) + suffix;
        if (take(name))
            return name;
    }
}

QString StoredFiles::nameFor(const Attachment &attachment)
{
    const Identity identity(
        attachment.contents.constData(), {attachment.contents.size(), attachment.fileName});
    const auto found = m_names.constFind(identity);
    if (found != m_names.cend())
        return *found;
    QString name = freeName(attachment.fileName);
    m_files.push_back({name, attachment.contents});
    m_names.insert(identity, name);
    return name;
}
