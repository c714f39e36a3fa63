// SPDX-License-Identifier: MIT
#include "documents/flat_text/FlatTextWriter.h"

#include "documents/flat_text/FlatTextFormat.h"

#include <QHash>

#include <cstring>
#include <limits>
#include <vector>

namespace {

using namespace FlatTextFormat;

/// Gives each distinct string an index.
class StringTable {
public:
    quint32 indexOf(const QString &string)
    {
        const auto known = m_indices.constFind(string);
        if (known != m_indices.cend())
            return *known;
        const auto index = static_cast<quint32>(m_strings.size());
        m_indices.insert(string, index);
        m_strings.push_back(string);
        return index;
    }

    [[nodiscard]] const std::vector<QString> &strings() const { return m_strings; }

private:
    QHash<QString, quint32> m_indices;
    std::vector<QString> m_strings;
};

/// Everything but the text, the runs and the contents of the attachments.
class Tables {
public:
    explicit Tables(const AttributedString &text)
    {
        m_records.reserve(text.distinctAttributes().size());
        for (const TextAttributes &attributes : text.distinctAttributes())
            m_records.push_back(recordOf(attributes));
        for (const Attachment *attachment : m_attachments)
            m_attachmentRecords.push_back({static_cast<quint64>(attachment->contents.size()),
                m_strings.indexOf(attachment->fileName), 0});
    }

    [[nodiscard]] const std::vector<AttributesRecord> &records() const { return m_records; }
    [[nodiscard]] const std::vector<TabStopRecord> &tabStops() const { return m_tabStops; }
    [[nodiscard]] const std::vector<AttachmentRecord> &attachmentRecords() const
    {
        return m_attachmentRecords;
    }
    [[nodiscard]] const std::vector<const Attachment *> &attachments() const { return m_attachments; }
    [[nodiscard]] const std::vector<QString> &strings() const { return m_strings.strings(); }

private:
    AttributesRecord recordOf(const TextAttributes &attributes)
    {
        const ParagraphStyle &style = attributes.paragraphStyle;
        AttributesRecord record{};
        if (attributes.font)
            describeFont(*attributes.font, record);
        record.firstLineHeadIndent = style.firstLineHeadIndent;
        record.headIndent = style.headIndent;
        record.tailIndent = style.tailIndent;
        record.defaultTabInterval = style.defaultTabInterval;
        record.lineSpacing = style.lineSpacing;
        record.paragraphSpacingBefore = style.paragraphSpacingBefore;
        record.paragraphSpacing = style.paragraphSpacing;
        record.alignment = static_cast<quint32>(style.alignment);
        record.direction = static_cast<quint32>(style.direction);
        record.language = m_strings.indexOf(attributes.language);
        record.attachment = numberOf(attributes.attachment.get());
        record.tabStopCount = static_cast<quint32>(style.tabStops.size());
        for (const TabStop &stop : style.tabStops)
            m_tabStops.push_back({stop.position, static_cast<quint32>(stop.alignment), 0});
        return record;
    }

    void describeFont(const FontAttributes &font, AttributesRecord &record)
    {
        record.hasFont = 1;
        record.family = m_strings.indexOf(font.family);
        record.pointSize = font.pointSize;
        record.weight = static_cast<quint32>(font.weight);
        record.slant = static_cast<quint32>(font.slant);
        record.tracking = font.tracking;
        record.baselineOffset = font.baselineOffset;
    }

    quint32 numberOf(const Attachment *attachment)
    {
        if (!attachment)
            return 0;
        quint32 &number = m_numbers[attachment];
        if (number == 0) {
            m_attachments.push_back(attachment);
            number = static_cast<quint32>(m_attachments.size());
        }
        return number;
    }

    StringTable m_strings;
    std::vector<AttributesRecord> m_records;
    std::vector<TabStopRecord> m_tabStops;
    std::vector<AttachmentRecord> m_attachmentRecords;
    std::vector<const Attachment *> m_attachments;
    QHash<const Attachment *, quint32> m_numbers; // of the attachments, from 1 on
};

class FlatText {
public:
    explicit FlatText(const AttributedString &text)
        : m_text(text)
        , m_tables(text)
    {
    }

    [[nodiscard]] bool isTooLong() const { return m_text.length() > std::numeric_limits<qint32>::max(); }

    [[nodiscard]] qsizetype size() const
    {
        qsizetype size = qsizetype{sizeof(Header)} + sizeOf(m_tables.records()) + sizeOf(m_tables.tabStops())
            + m_text.runCount() * static_cast<qsizetype>(sizeof(RunRecord))
            + sizeOf(m_tables.attachmentRecords())
            + static_cast<qsizetype>(m_tables.strings().size()) * qsizetype{sizeof(quint32)}
            + m_text.length() * static_cast<qsizetype>(sizeof(QChar));
        for (const QString &string : m_tables.strings())
            size += string.size() * static_cast<qsizetype>(sizeof(QChar));
        for (const Attachment *attachment : m_tables.attachments())
            size += attachment->contents.size();
        return size;
    }

    /// to: memory for size() bytes.
    void write(char *to)
    {
        m_to = to;
        add(Header{magic, version, static_cast<quint32>(m_text.length()),
            static_cast<quint32>(m_text.runCount()), countOf(m_tables.records()),
            countOf(m_tables.tabStops()), countOf(m_tables.attachmentRecords()),
            countOf(m_tables.strings())});
        addAll(m_tables.records());
        addAll(m_tables.tabStops());
        for (qsizetype i = 0; i < m_text.runCount(); ++i) {
            const AttributedString::Run run = m_text.run(i);
            add(RunRecord{static_cast<quint32>(run.start), run.attributesIndex});
        }
        addAll(m_tables.attachmentRecords());
        for (const QString &string : m_tables.strings())
            add(static_cast<quint32>(string.size()));
        addUnits(m_text.string());
        for (const QString &string : m_tables.strings())
            addUnits(string);
        for (const Attachment *attachment : m_tables.attachments())
            addBytes(attachment->contents.constData(), static_cast<size_t>(attachment->contents.size()));
    }

private:
    template <typename Record>
    static qsizetype sizeOf(const std::vector<Record> &records)
    {
        return static_cast<qsizetype>(records.size()) * qsizetype{sizeof(Record)};
    }
    template <typename Record>
    static quint32 countOf(const std::vector<Record> &records)
    {
        return static_cast<quint32>(records.size());
    }

    void addBytes(const void *bytes, size_t size)
    {
        if (size > 0)
            std::memcpy(m_to, bytes, size);
        m_to += size;
    }
    template <typename Record>
    void add(const Record &record)
    {
        addBytes(&record, sizeof record);
    }
    template <typename Record>
    void addAll(const std::vector<Record> &records)
    {
        addBytes(records.data(), records.size() * sizeof(Record));
    }
    void addUnits(const QString &string)
    {
        addBytes(string.constData(), static_cast<size_t>(string.size()) * sizeof(QChar));
    }

    const AttributedString &m_text;
    const Tables m_tables;
    char *m_to = nullptr;
};

} // namespace

std::optional<qsizetype> writeFlatText(const AttributedString &text, std::span<char> memory)
{
    FlatText flat(text);
    const qsizetype size = flat.size();
    if (flat.isTooLong() || static_cast<size_t>(size) > memory.size())
        return std::nullopt;
    flat.write(memory.data());
    return size;
}

QByteArray flatTextOf(const AttributedString &text)
{
    FlatText flat(text);
    if (flat.isTooLong())
        return {};
    QByteArray bytes(flat.size(), Qt::Uninitialized);
    flat.write(bytes.data());
    return bytes;
}
