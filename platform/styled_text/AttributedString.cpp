// SPDX-License-Identifier: MIT
#include "platform/styled_text/AttributedString.h"

#include <algorithm>
#include <utility>

AttributedString::AttributedString(const QString &text, const TextAttributes &attributes)
{
    if (!text.isEmpty())
        m_content = std::make_shared<const Content>(Content{text, {{0, 0}}, {attributes}});
}

std::optional<AttributedString> AttributedString::fromParts(
    QString text, std::vector<RunStart> runs, std::vector<TextAttributes> attributes)
{
    if (text.isEmpty())
        return runs.empty() && attributes.empty() ? std::optional(AttributedString()) : std::nullopt;
    if (runs.empty() || runs.front().start != 0 || runs.back().start >= text.size()
        || attributes.size() > runs.size())
        return std::nullopt;
    for (size_t i = 0; i < runs.size(); ++i) {
        const bool isInOrder = i == 0
            || (runs[i - 1].start < runs[i].start && runs[i - 1].attributesIndex != runs[i].attributesIndex);
        if (!isInOrder || runs[i].attributesIndex >= attributes.size())
            return std::nullopt;
    }
    return AttributedString(
        std::make_shared<const Content>(Content{std::move(text), std::move(runs), std::move(attributes)}));
}

const AttributedString::Content &AttributedString::content() const
{
    static const Content empty;
    return m_content ? *m_content : empty;
}

const QString &AttributedString::string() const
{
    return content().text;
}

qsizetype AttributedString::runCount() const
{
    return static_cast<qsizetype>(content().runs.size());
}

AttributedString::Run AttributedString::run(qsizetype index) const
{
    const std::vector<RunStart> &runs = content().runs;
    const auto at = static_cast<size_t>(index);
    const qsizetype end = at + 1 < runs.size() ? runs[at + 1].start : length();
    return {runs[at].start, end - runs[at].start, runs[at].attributesIndex};
}

qsizetype AttributedString::runIndexAt(qsizetype position) const
{
    const std::vector<RunStart> &runs = content().runs;
    const auto after = std::upper_bound(runs.begin(), runs.end(), position,
        [](qsizetype wanted, const RunStart &run) { return wanted < run.start; });
    return after - runs.begin() - 1;
}

const std::vector<TextAttributes> &AttributedString::distinctAttributes() const
{
    return content().attributes;
}

const TextAttributes &AttributedString::attributesAt(qsizetype position) const
{
    return content().attributes[run(runIndexAt(position)).attributesIndex];
}

bool AttributedString::operator==(const AttributedString &other) const
{
    if (m_content == other.m_content)
        return true;
    if (string() != other.string() || runCount() != other.runCount())
        return false;
    // Neighbouring runs differ, so equal texts have the same runs. Each pair of indices is compared only
    // once: comparing attributes again for every run would be slow.
    constexpr quint32 unknown = UINT32_MAX;
    std::vector<quint32> counterparts(distinctAttributes().size(), unknown);
    for (qsizetype i = 0; i < runCount(); ++i) {
        const Run mine = run(i);
        const Run theirs = other.run(i);
        if (mine.start != theirs.start)
            return false;
        quint32 &counterpart = counterparts[mine.attributesIndex];
        if (counterpart == unknown) {
            if (!(distinctAttributes()[mine.attributesIndex]
                    == other.distinctAttributes()[theirs.attributesIndex]))
                return false;
            counterpart = theirs.attributesIndex;
        } else if (counterpart != theirs.attributesIndex) {
            return false;
        }
    }
    return true;
}

quint32 AttributedStringBuilder::indexOf(const TextAttributes &attributes)
{
    const auto found = m_indices.constFind(attributes);
    if (found != m_indices.cend())
        return *found;
    const auto index = static_cast<quint32>(m_content.attributes.size());
    m_content.attributes.push_back(attributes);
    m_indices.insert(attributes, index);
    return index;
}

void AttributedStringBuilder::append(QStringView text, const TextAttributes &attributes)
{
    if (text.isEmpty())
        return;
    const quint32 index = indexOf(attributes);
    if (m_content.runs.empty() || m_content.runs.back().attributesIndex != index)
        m_content.runs.push_back({m_content.text.size(), index});
    m_content.text.append(text);
}

void AttributedStringBuilder::append(const AttributedString &text)
{
    const QStringView characters = text.string();
    for (qsizetype i = 0; i < text.runCount(); ++i) {
        const AttributedString::Run run = text.run(i);
        append(characters.sliced(run.start, run.length), text.distinctAttributes()[run.attributesIndex]);
    }
}

AttributedString AttributedStringBuilder::build()
{
    m_indices.clear();
    AttributedString::Content content = std::exchange(m_content, {});
    if (content.text.isEmpty())
        return {};
    content.text.squeeze();
    content.runs.shrink_to_fit();
    content.attributes.shrink_to_fit();
    return AttributedString(std::make_shared<const AttributedString::Content>(std::move(content)));
}
