// SPDX-License-Identifier: MIT
#include "command/MarkedText.h"

#include "command/CommandWords.h"
#include "command/FileNames.h"
#include "platform/segmentation/GraphemeClusters.h"
#include "platform/segmentation/Paragraphs.h"
#include "platform/system/StandardOutput.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

constexpr qsizetype numberWidth = 6; // of the lines' numbers
constexpr qsizetype maxExcerptLength = 32; // UTF-16 code units
constexpr qsizetype maxExcerptsOfNote = 3;

/// For the terminal, with its tabs.
QByteArray printablePart(QStringView text)
{
    QByteArray printable;
    for (const QStringView piece : text.split(u'\t'))
        printable += printableName(piece.toUtf8()) + '\t';
    printable.chop(1);
    return printable;
}

/// The characters from a position on, at most so many.
QStringView firstPart(QStringView text, qsizetype start, qsizetype end)
{
    return firstUnits(text.sliced(start, end - start), maxExcerptLength);
}

QByteArray excerpt(QStringView text, qsizetype start, qsizetype end)
{
    const QStringView part = firstPart(text, start, end);
    return printablePart(part) + (part.size() < end - start ? "…" : "");
}

/// Where the text before an item starts that is printed with it: in the same line.
qsizetype startOfContext(QStringView text, qsizetype itemStart)
{
    qsizetype start = itemStart;
    while (start > 0 && itemStart - start < maxExcerptLength && !isLineEnd(text[start - 1].unicode()))
        --start;
    return start < itemStart && text[start].isLowSurrogate() ? start + 1 : start;
}

/// The text of the same line behind an item.
QStringView contextFrom(QStringView text, qsizetype itemEnd)
{
    qsizetype end = itemEnd;
    while (end < text.size() && end - itemEnd <= maxExcerptLength && !isLineEnd(text[end].unicode()))
        ++end;
    return firstPart(text, itemEnd, end);
}

QByteArray marked(const CountedItem &item, const QByteArray &text)
{
    return item.isCounted() ? '[' + text + ']' : '{' + text + '}';
}

bool isWhiteRun(QStringView text, const CountedItem &item)
{
    const bool isRun =
        item.reason == CountingReason::WhiteSpace || item.reason == CountingReason::AnyCharacter;
    return isRun && text[item.start].isSpace();
}

/// Whether the reason needs no words below a line.
bool isVisible(CountingReason reason)
{
    return isCounted(reason) || reason == CountingReason::Blank || reason == CountingReason::NoIndent;
}

QByteArray lineNumber(qsizetype line)
{
    return QByteArray::number(line).rightJustified(numberWidth);
}

QByteArray noteLine(const QString &note)
{
    return QByteArray(numberWidth + 2, ' ') + note.toUtf8() + '\n';
}

/// The end of the part of an item that is marked: before white space, unless it consists of that, and before
/// line ends.
qsizetype markedEnd(QStringView text, const CountedItem &item)
{
    const auto endBefore = [&](const auto &isDropped) {
        qsizetype end = item.end();
        while (end > item.start && isDropped(text[end - 1]))
            --end;
        return end;
    };
    const qsizetype end = endBefore([](QChar unit) { return unit.isSpace(); });
    return end > item.start ? end : endBefore([](QChar unit) { return isLineEnd(unit.unicode()); });
}

} // namespace

void MarkedText::add(const CountedItem &item)
{
    printUpTo(item.start);
    if (isWhiteRun(m_text, item))
        return; // left as it is, since it would only hide the line ends in brackets
    print(item.isCounted() ? "[" : "{");
    printUpTo(markedEnd(m_text, item));
    print(item.isCounted() ? "]" : "}");
    if (!isVisible(item.reason))
        addNote(item);
    printUpTo(item.end());
}

void MarkedText::finish()
{
    printUpTo(m_text.size());
    if (m_isLineStarted)
        endLine();
}

void MarkedText::printUpTo(qsizetype end)
{
    while (m_position < end) {
        const qsizetype start = m_position;
        while (m_position < end && !isLineEnd(m_text[m_position].unicode()))
            ++m_position;
        printPiece(start, m_position);
        if (m_position == end)
            return;
        const bool endsLine = lineEndLength(m_text, m_position) == 1; // and not the first half of CR LF
        ++m_position;
        if (endsLine)
            endLine();
    }
}

void MarkedText::printPiece(qsizetype start, qsizetype end)
{
    if (start < end)
        print(printablePart(m_text.sliced(start, end - start)));
}

void MarkedText::print(const QByteArray &bytes)
{
    if (!std::exchange(m_isLineStarted, true))
        ::print(lineNumber(m_line) + "  ");
    ::print(bytes);
}

void MarkedText::endLine()
{
    ::print(std::exchange(m_isLineStarted, false) ? "\n" : lineNumber(m_line) + '\n');
    ++m_line;
    for (std::size_t i = 0; i < m_notes.size(); ++i) {
        const Note note = std::exchange(m_notes[i], {});
        if (note.count == 0)
            continue;
        const qsizetype more = note.count - note.excerpts.size();
        const QString excerpts = QString::fromUtf8(note.excerpts.join(' '));
        const QString reason = explanationOf(static_cast<CountingReason>(i), m_rules);
        ::print(noteLine(more > 0 ? CommandText::tr("not counted: %1 and %2 more: %3")
                                        .arg(excerpts, QString::number(more), reason)
                                  : CommandText::tr("not counted: %1: %2").arg(excerpts, reason)));
    }
}

void MarkedText::addNote(const CountedItem &item)
{
    Note &note = m_notes.at(static_cast<std::size_t>(item.reason));
    ++note.count;
    if (note.excerpts.size() == maxExcerptsOfNote)
        return;
    note.excerpts.append(marked(item, excerpt(m_text, item.start, markedEnd(m_text, item))));
}

void MarkedText::addAlone(const CountedItem &item)
{
    skipTo(item.start);
    const qsizetype end = markedEnd(m_text, item);
    const qsizetype from = startOfContext(m_text, item.start);
    ::print(lineNumber(m_line) + "  " + printablePart(m_text.sliced(from, item.start - from))
        + marked(item, excerpt(m_text, item.start, end)) + printablePart(contextFrom(m_text, end)) + '\n'
        + noteLine(CommandText::tr("not counted: %1").arg(explanationOf(item.reason, m_rules))));
}

// Counts the lines without printing them.
void MarkedText::skipTo(qsizetype end)
{
    for (; m_position < end; ++m_position) {
        const bool endsLine =
            isLineEnd(m_text[m_position].unicode()) && lineEndLength(m_text, m_position) == 1;
        m_line += endsLine ? 1 : 0;
    }
}
