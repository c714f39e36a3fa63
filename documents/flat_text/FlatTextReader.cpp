// SPDX-License-Identifier: MIT
#include "documents/flat_text/FlatTextReader.h"

#include "documents/flat_text/FlatTextFormat.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <utility>
#include <vector>

namespace {

using namespace FlatTextFormat;

constexpr quint32 maxWeight = 1000;

bool areFinite(std::initializer_list<double> numbers)
{
    return std::ranges::all_of(numbers, [](double number) { return std::isfinite(number); });
}

template <typename Enum>
bool isInRange(quint32 number, Enum last)
{
    return number <= static_cast<quint32>(last);
}

/// Takes pieces off the start of the bytes. Once a piece reaches beyond their end, all further ones are
/// empty, and the whole is damaged.
class Pieces {
public:
    explicit Pieces(QByteArrayView bytes)
        : m_rest(bytes)
    {
    }

    /// Whether every piece was there and nothing is left.
    [[nodiscard]] bool areComplete() const { return !m_isDamaged && m_rest.isEmpty(); }
    [[nodiscard]] bool areDamaged() const { return m_isDamaged; }

    QByteArrayView takeBytes(quint64 size)
    {
        if (m_isDamaged || size > static_cast<quint64>(m_rest.size())) {
            m_isDamaged = true;
            return {};
        }
        const QByteArrayView bytes = m_rest.first(static_cast<qsizetype>(size));
        m_rest = m_rest.sliced(static_cast<qsizetype>(size));
        return bytes;
    }

    template <typename Record>
    std::vector<Record> takeRecords(quint32 count)
    {
        const QByteArrayView bytes = takeBytes(quint64{count} * sizeof(Record));
        std::vector<Record> records(static_cast<size_t>(bytes.size()) / sizeof(Record));
        if (!bytes.isEmpty())
            std::memcpy(records.data(), bytes.data(), static_cast<size_t>(bytes.size()));
        return records;
    }

    QString takeString(quint32 length)
    {
        const QByteArrayView bytes = takeBytes(quint64{length} * sizeof(QChar));
        QString string(bytes.size() / static_cast<qsizetype>(sizeof(QChar)), Qt::Uninitialized);
        if (!bytes.isEmpty()) // it may lie at any address
            std::memcpy(string.data(), bytes.data(), static_cast<size_t>(bytes.size()));
        return string;
    }

private:
    QByteArrayView m_rest;
    bool m_isDamaged = false;
};

/// Turns the records into attributes, once all strings and attachments are known.
class AttributesMaker {
public:
    AttributesMaker(const std::vector<QString> &strings,
        const std::vector<std::shared_ptr<const Attachment>> &attachments,
        const std::vector<TabStopRecord> &tabStops)
        : m_strings(strings)
        , m_attachments(attachments)
        , m_tabStops(tabStops)
    {
    }

    std::optional<TextAttributes> make(const AttributesRecord &record)
    {
        TextAttributes attributes;
        if (record.unused != 0 || record.language >= m_strings.size()
            || record.attachment > m_attachments.size() || !takeFont(record, attributes)
            || !takeStyle(record, attributes.paragraphStyle))
            return std::nullopt;
        attributes.language = m_strings[record.language];
        if (record.attachment > 0)
            attributes.attachment = m_attachments[record.attachment - 1];
        return attributes;
    }

    [[nodiscard]] bool hasTakenAllTabStops() const { return m_tabStopsTaken == m_tabStops.size(); }

private:
    bool takeFont(const AttributesRecord &record, TextAttributes &attributes) const
    {
        if (record.hasFont == 0)
            return record.family == 0 && record.weight == 0 && record.slant == 0 && record.pointSize == 0
                && record.tracking == 0 && record.baselineOffset == 0;
        if (record.hasFont != 1 || record.family >= m_strings.size() || record.weight < 1
            || record.weight > maxWeight || !isInRange(record.slant, FontSlant::Oblique)
            || !areFinite({record.pointSize, record.tracking, record.baselineOffset}))
            return false;
        attributes.font =
            FontAttributes{m_strings[record.family], record.pointSize, static_cast<int>(record.weight),
                static_cast<FontSlant>(record.slant), record.tracking, record.baselineOffset};
        return true;
    }

    bool takeStyle(const AttributesRecord &record, ParagraphStyle &style)
    {
        if (!isInRange(record.alignment, TextAlignment::Justified)
            || !isInRange(record.direction, WritingDirection::RightToLeft)
            || !areFinite(
                {record.firstLineHeadIndent, record.headIndent, record.tailIndent, record.defaultTabInterval,
                    record.lineSpacing, record.paragraphSpacingBefore, record.paragraphSpacing}))
            return false;
        style.alignment = static_cast<TextAlignment>(record.alignment);
        style.direction = static_cast<WritingDirection>(record.direction);
        style.firstLineHeadIndent = record.firstLineHeadIndent;
        style.headIndent = record.headIndent;
        style.tailIndent = record.tailIndent;
        style.defaultTabInterval = record.defaultTabInterval;
        style.lineSpacing = record.lineSpacing;
        style.paragraphSpacingBefore = record.paragraphSpacingBefore;
        style.paragraphSpacing = record.paragraphSpacing;
        return takeTabStops(record.tabStopCount, style.tabStops);
    }

    bool takeTabStops(quint32 count, std::vector<TabStop> &stops)
    {
        if (count > m_tabStops.size() - m_tabStopsTaken)
            return false;
        stops.reserve(count);
        for (quint32 i = 0; i < count; ++i) {
            const TabStopRecord &record = m_tabStops[m_tabStopsTaken++];
            if (record.unused != 0 || !isInRange(record.alignment, TabAlignment::Decimal)
                || !std::isfinite(record.position)
                || (!stops.empty() && stops.back().position > record.position))
                return false;
            stops.push_back({record.position, static_cast<TabAlignment>(record.alignment)});
        }
        return true;
    }

    const std::vector<QString> &m_strings;
    const std::vector<std::shared_ptr<const Attachment>> &m_attachments;
    const std::vector<TabStopRecord> &m_tabStops;
    size_t m_tabStopsTaken = 0;
};

std::optional<std::vector<TextAttributes>> attributesFrom(const std::vector<AttributesRecord> &records,
    const std::vector<TabStopRecord> &tabStops, const std::vector<QString> &strings,
    const std::vector<std::shared_ptr<const Attachment>> &attachments)
{
    AttributesMaker maker(strings, attachments, tabStops);
    std::vector<TextAttributes> result;
    result.reserve(records.size());
    for (const AttributesRecord &record : records) {
        std::optional<TextAttributes> attributes = maker.make(record);
        if (!attributes)
            return std::nullopt;
        result.push_back(*std::move(attributes));
    }
    return maker.hasTakenAllTabStops() ? std::optional(std::move(result)) : std::nullopt;
}

/// Absent where a record is out of its range.
std::optional<std::vector<std::shared_ptr<const Attachment>>> takeAttachments(
    Pieces &pieces, const std::vector<AttachmentRecord> &records, const std::vector<QString> &strings)
{
    std::vector<std::shared_ptr<const Attachment>> attachments;
    attachments.reserve(records.size());
    for (const AttachmentRecord &record : records) {
        const QByteArrayView contents = pieces.takeBytes(record.contentsLength);
        if (pieces.areDamaged() || record.unused != 0 || record.fileName >= strings.size())
            return std::nullopt;
        attachments.push_back(
            std::make_shared<const Attachment>(Attachment{strings[record.fileName], contents.toByteArray()}));
    }
    return attachments;
}

} // namespace

std::optional<AttributedString> readFlatText(QByteArrayView bytes)
{
    Pieces pieces(bytes);
    Header header{};
    const QByteArrayView start = pieces.takeBytes(sizeof header);
    if (pieces.areDamaged())
        return std::nullopt;
    std::memcpy(&header, start.data(), sizeof header);
    if (header.magic != magic || header.version != version
        || header.textLength > static_cast<quint32>(std::numeric_limits<qint32>::max()))
        return std::nullopt;

    const auto records = pieces.takeRecords<AttributesRecord>(header.attributesCount);
    const auto tabStops = pieces.takeRecords<TabStopRecord>(header.tabStopCount);
    const auto runRecords = pieces.takeRecords<RunRecord>(header.runCount);
    const auto attachmentRecords = pieces.takeRecords<AttachmentRecord>(header.attachmentCount);
    const auto stringLengths = pieces.takeRecords<quint32>(header.stringCount);
    QString text = pieces.takeString(header.textLength);
    std::vector<QString> strings;
    strings.reserve(stringLengths.size());
    for (const quint32 length : stringLengths)
        strings.push_back(pieces.takeString(length));
    const auto attachments = takeAttachments(pieces, attachmentRecords, strings);
    if (!attachments || !pieces.areComplete())
        return std::nullopt;

    auto attributes = attributesFrom(records, tabStops, strings, *attachments);
    if (!attributes)
        return std::nullopt;
    std::vector<AttributedString::RunStart> runs;
    runs.reserve(runRecords.size());
    for (const RunRecord &record : runRecords)
        runs.push_back({record.start, record.attributes});
    return AttributedString::fromParts(std::move(text), std::move(runs), *std::move(attributes));
}
