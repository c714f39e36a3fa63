// SPDX-License-Identifier: MIT
#include "documents/rtfd/RtfdWriter.h"

#include "documents/rtfd/FlatFolder.h"
#include "documents/rtfd/FlatFolderWriter.h"
#include "platform/styled_text/TextAttributes.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

namespace {

constexpr qsizetype maxNameLength = 255; // bytes, on most file systems
constexpr qsizetype maxSuffixLength = 8;

bool isPortable(char32_t character)
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

/// Whether every file system accepts the name, and no program hides the file.
bool isPortable(const QString &name)
{
    const auto isAtEdge = [&](char16_t unit) {
        return name.startsWith(QChar(unit)) || name.endsWith(QChar(unit));
    };
    if (name.isEmpty() || name.size() > maxNameLength || name.toUtf8().size() > maxNameLength
        || !name.isValidUtf16() || isAtEdge(u'.') || isAtEdge(u' '))
        return false;
    const QList<uint> characters = name.toUcs4();
    return std::all_of(characters.begin(), characters.end(),
        [](uint character) { return isPortable(static_cast<char32_t>(character)); });
}

/// The end of the name from its last full stop on; empty unless it is short and of ASCII letters and digits.
QString suffixOf(const QString &name)
{
    const QString suffix = name.sliced(name.lastIndexOf(u'.') + 1);
    const bool isPortableSuffix = !suffix.isEmpty() && suffix.size() < name.size()
        && suffix.size() <= maxSuffixLength && std::all_of(suffix.begin(), suffix.end(), [](QChar character) {
               return character.unicode() < 128 && character.isLetterOrNumber();
           });
    return isPortableSuffix ? u'.' + suffix : QString();
}

/// Gives attachments names under which their files can lie beside TXT.rtf on every file system: their own
/// names where possible, substitutes otherwise.
class StoredFiles {
public:
    StoredFiles();

    /// The name for an attachment, the same for copies of it. No two names differ in case only.
    QString nameFor(const Attachment &attachment);

    struct File {
        QString name;
        QByteArray contents;
    };
    /// In the order of the calls of nameFor().
    [[nodiscard]] const std::vector<File> &files() const { return m_files; }

private:
    using Identity = std::pair<const char *, std::pair<qsizetype, QString>>;

    [[nodiscard]] bool take(const QString &name);
    QString freeName(const QString &ownName);

    std::vector<File> m_files;
    QHash<Identity, QString> m_names; ///< by where the contents lie, their size, and the own name
    QSet<QString> m_taken; ///< folded
    qsizetype m_lastNumber = 0; ///< of a substitute
};

StoredFiles::StoredFiles()
{
    m_taken.insert(QString::fromLatin1(FlatFormat::textName).toCaseFolded());
}

/// Whether the name was free; it is taken now.
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
    if (isPortable(ownName) && take(ownName))
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

constexpr quint32 modificationTime = 0; // the same text has the same bytes at any time
constexpr quint32 mode = 0644;

QByteArray attributesOf(const std::vector<FlatEntry> &entries)
{
    QByteArray attributes;
    appendFlatWord(attributes, 1);
    for (const FlatEntry &entry : entries) {
        appendFlatWord(attributes, static_cast<quint32>(entry.name.size()));
        attributes.append(entry.name);
        for (const quint32 word : {FlatFormat::attributesSize, modificationTime, mode, 0U, 0U})
            appendFlatWord(attributes, word);
    }
    return attributes;
}

Result<QByteArray, DocumentError> flatRtfd(const AttributedString &text, qsizetype start, qsizetype length)
{
    StoredFiles files;
    std::vector<FlatEntry> entries{{FlatFormat::textName, {}}};
    const auto startOfFolder = [&] {
        for (const StoredFiles::File &file : files.files())
            entries.push_back({file.name.toUtf8(), file.contents});
        entries.push_back({FlatFormat::attributesName, attributesOf(entries)});
        return startOfFlatFolder(entries);
    };
    Result<QByteArray, DocumentError> folder = writeRtf(
        text, start, length, [&](const Attachment &attachment) { return files.nameFor(attachment); },
        startOfFolder);
    if (!folder)
        return folder.error();
    return finishFlatFolder(std::move(folder).value(), entries);
}

} // namespace

Result<QByteArray, DocumentError> RTFDFromRange(const AttributedString &text, qsizetype start,
    qsizetype length, const QVariantMap & /*documentAttributes*/)
{
    try {
        return flatRtfd(text, start, length);
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Rtfd);
    }
}
