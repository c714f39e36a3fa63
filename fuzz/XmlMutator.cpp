// SPDX-License-Identifier: MIT
#include "fuzz/XmlMutator.h"

#include <QByteArrayList>

#include <algorithm>
#include <iterator>
#include <vector>

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t maxBytes);

namespace {

struct Range {
    qsizetype start;
    qsizetype end;

    [[nodiscard]] QByteArray of(const QByteArray &xml) const { return xml.sliced(start, end - start); }
};

size_t randomBelow(size_t bound, std::mt19937 &random)
{
    return random() % bound;
}

/// The elements with their content; a start tag without an end tag counts as an element.
std::vector<Range> elementsOf(const QByteArray &xml)
{
    std::vector<Range> elements;
    std::vector<size_t> open;
    for (qsizetype start = xml.indexOf('<'); start >= 0; start = xml.indexOf('<', start + 1)) {
        const qsizetype close = xml.indexOf('>', start);
        if (close < 0)
            break;
        if (xml.at(start + 1) == '/') {
            if (!open.empty()) {
                elements[open.back()].end = close + 1;
                open.pop_back();
            }
            continue;
        }
        if (xml.at(close - 1) != '/')
            open.push_back(elements.size());
        elements.push_back({start, close + 1});
    }
    return elements;
}

/// Inserts the text between two tags, or at the end.
QByteArray insertSomewhere(
    const QByteArray &xml, const std::vector<Range> &elements, const QByteArray &text, std::mt19937 &random)
{
    if (elements.empty())
        return xml + text;
    const Range &place = elements[randomBelow(elements.size(), random)];
    const qsizetype positions[]{place.start, place.end, xml.indexOf('>', place.start) + 1};
    QByteArray changed = xml;
    return changed.insert(positions[randomBelow(std::size(positions), random)], text);
}

} // namespace

QByteArray XmlMutator::wrap(const QByteArray &content, std::mt19937 &random) const
{
    return QByteArray(m_wrappers[randomBelow(m_wrappers.size(), random)]).replace('|', content);
}

QByteArray XmlMutator::fragment(std::mt19937 &random) const
{
    const QByteArray leaf(m_leaves[randomBelow(m_leaves.size(), random)]);
    return randomBelow(2, random) ? leaf : wrap(leaf, random);
}

QByteArray XmlMutator::mutate(const QByteArray &xml, std::mt19937 &random) const
{
    const std::vector<Range> elements = elementsOf(xml);
    if (elements.empty())
        return xml + fragment(random);
    const Range &chosen = elements[randomBelow(elements.size(), random)];
    const qsizetype length = chosen.end - chosen.start;
    QByteArray changed = xml;
    switch (randomBelow(6, random)) {
    case 0:
        return changed.remove(chosen.start, length);
    case 1:
        return changed.insert(chosen.end, chosen.of(xml));
    case 2:
        return changed.replace(chosen.start, length, wrap(chosen.of(xml), random));
    case 3: {
        const QByteArray moved = chosen.of(xml);
        changed.remove(chosen.start, length);
        return insertSomewhere(changed, elementsOf(changed), moved, random);
    }
    case 4: { // only its content stays
        const QByteArray element = chosen.of(xml);
        const qsizetype start = element.indexOf('>') + 1;
        const qsizetype end = element.lastIndexOf('<');
        return changed.replace(
            chosen.start, length, end > start ? element.sliced(start, end - start) : QByteArray());
    }
    default:
        return insertSomewhere(xml, elements, fragment(random), random);
    }
}

size_t XmlMutator::mutateParts(uint8_t *data, size_t size, size_t maxBytes, unsigned seed) const
{
    std::mt19937 random(seed);
    QByteArrayList parts =
        QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)).split('\0');
    if (parts.first().startsWith("PK") || random() % 4 == 0)
        return LLVMFuzzerMutate(data, size, maxBytes);
    // The first part in every other case: it has the richest format.
    const size_t place = random() % 2 ? 0 : random() % static_cast<size_t>(parts.size());
    QByteArray &part = parts[static_cast<qsizetype>(place)];
    for (unsigned changes = 1 + random() % 4; changes > 0; --changes)
        part = mutate(part, random);
    QByteArray mutated = parts.join('\0');
    mutated.truncate(static_cast<qsizetype>(maxBytes));
    std::copy(mutated.begin(), mutated.end(), reinterpret_cast<char *>(data));
    return static_cast<size_t>(mutated.size());
}
