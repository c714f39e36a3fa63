// SPDX-License-Identifier: MIT
#include "text_statistics/ParagraphMemory.h"

#include "platform/segmentation/Paragraphs.h"

#include <algorithm>
#include <array>
#include <bit>
#include <memory>
#include <span>
#include <unordered_map>

namespace {

QByteArrayView bytesOf(QStringView text)
{
    return {reinterpret_cast<const char *>(text.utf16()), text.size() * qsizetype{sizeof(char16_t)}};
}

QByteArrayView bytesOf(std::span<const quint64> numbers)
{
    return {reinterpret_cast<const char *>(numbers.data()), static_cast<qsizetype>(numbers.size_bytes())};
}

ContentHash hashOf(const TextRules &rules, double columnWidth)
{
    const std::array<quint64, 3> numbers{static_cast<quint64>(rules.minimumSentencesOfParagraph),
        rules.sentencesNeedTerminalPunctuation ? 1U : 0U, std::bit_cast<quint64>(columnWidth)};
    return contentHash(bytesOf(numbers), contentHash(bytesOf(rules.localeIdentifier())));
}

/// In place of all attachments: no count depends on what they contain.
const std::shared_ptr<const Attachment> &anyAttachment()
{
    static const auto attachment = std::make_shared<const Attachment>();
    return attachment;
}

/// Bytes of memory, about.
qsizetype sizeOf(const TextAttributes &attributes)
{
    const qsizetype names =
        (attributes.font ? attributes.font->family.size() : 0) + attributes.language.size();
    const auto tabStops = static_cast<qsizetype>(attributes.paragraphStyle.tabStops.size());
    return qsizetype{sizeof attributes} + names * qsizetype{sizeof(char16_t)}
    + tabStops * qsizetype{sizeof(TabStop)};
}

/// The end of the piece that starts at a paragraph.
qsizetype endOfPiece(QStringView text, qsizetype start)
{
    for (qsizetype end = start; end < text.size();) {
        const Paragraph paragraph = paragraphAt(text, end);
        if (end > start && paragraph.end() - start > ParagraphMemory::maxPieceLength)
            return end;
        end = paragraph.end();
        // One paragraph of eight ends a piece.
        if (end - start >= ParagraphMemory::minPieceLength && qHash(paragraph.content(text)) % 8 == 0)
            return end;
    }
    return text.size();
}

} // namespace

QBYWordCounterStats ParagraphMemory::count(
    const AttributedString &text, const TextRules &rules, double columnWidth, const CountPieces &countPieces)
{
    QBYWordCounterStats sum;
    std::vector<CountedPiece> pieces; // that are not remembered
    std::vector<ContentHash> hashes; // of these
    std::vector<size_t> uses; // which of them the text has, once or more often
    std::unordered_map<ContentHash, size_t> indices;
    forEachPiece(
        text, hashOf(rules, columnWidth), [&](qsizetype start, qsizetype end, const ContentHash &hash) {
            if (const QBYWordCounterStats *const known = m_counts.object(hash)) {
                sum += *known;
                return;
            }
            const auto [index, isNew] = indices.try_emplace(hash, pieces.size());
            if (isNew) {
                pieces.push_back({start, end});
                hashes.push_back(hash);
            }
            uses.push_back(index->second);
        });
    countPieces(pieces);
    for (const size_t use : uses)
        sum += pieces[use].counts;
    for (size_t i = 0; i < pieces.size(); ++i)
        m_counts.insert(hashes[i], new QBYWordCounterStats(pieces[i].counts));
    return sum;
}

template <typename Take>
void ParagraphMemory::forEachPiece(const AttributedString &text, const ContentHash &rulesHash, Take &&take)
{
    const std::vector<quint64> styleNumbers = styleNumbersOf(text);
    std::vector<quint64> styles; // of one piece: where each begins, and its number
    qsizetype run = 0;
    for (qsizetype start = 0, end = 0; start < text.length(); start = end) {
        end = endOfPiece(text.string(), start);
        styles.clear();
        for (;; ++run) {
            const AttributedString::Run style = text.run(run);
            styles.push_back(static_cast<quint64>(std::max(style.start, start) - start));
            styles.push_back(styleNumbers[style.attributesIndex]);
            if (style.start + style.length >= end)
                break; // the next piece may begin in it
        }
        if (run + 1 < text.runCount() && text.run(run + 1).start == end)
            ++run;
        take(start, end,
            contentHash(bytesOf(QStringView(text.string()).sliced(start, end - start)),
                contentHash(bytesOf(styles), rulesHash)));
    }
}

quint64 ParagraphMemory::styleNumberOf(TextAttributes attributes)
{
    if (attributes.attachment)
        attributes.attachment = anyAttachment();
    quint64 &number = m_styles[attributes];
    if (number == 0) {
        number = ++m_lastStyle;
        m_styleBytes += sizeOf(attributes);
    }
    return number;
}

std::vector<quint64> ParagraphMemory::styleNumbersOf(const AttributedString &text)
{
    if (m_styleBytes > maxStyleBytes) {
        m_counts.clear();
        m_styles.clear();
        m_styleBytes = 0;
    }
    std::vector<quint64> numbers;
    numbers.reserve(text.distinctAttributes().size());
    for (const TextAttributes &attributes : text.distinctAttributes())
        numbers.push_back(styleNumberOf(attributes));
    return numbers;
}
