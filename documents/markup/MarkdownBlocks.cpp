// SPDX-License-Identifier: MIT
#include "documents/markup/MarkdownBlocks.h"

#include <QList>

#include <algorithm>
#include <array>

namespace {

QStringView lineAt(QStringView text, qsizetype start)
{
    const qsizetype end = text.indexOf(u'\n', start);
    return end < 0 ? text.sliced(start) : text.sliced(start, end - start);
}

/// The end of a mark such as [^1], or start if there is none.
qsizetype noteMarkEnd(QStringView text, qsizetype start)
{
    constexpr qsizetype maxLength = 100;
    if (!text.sliced(start).startsWith(u"[^"))
        return start;
    const qsizetype limit = std::min(text.size(), start + maxLength);
    for (qsizetype at = start + 2; at < limit; ++at) {
        if (text[at] == u']')
            return at > start + 2 ? at + 1 : start;
        if (text[at].isSpace() || text[at] == u'[')
            return start;
    }
    return start;
}

QString withoutNoteMarks(QStringView block)
{
    QString text;
    text.reserve(block.size());
    for (qsizetype at = 0; at < block.size();) {
        const qsizetype end = block[at] == u'[' ? noteMarkEnd(block, at) : at;
        if (end == at)
            text += block[at++];
        else
            at = end;
    }
    return text;
}

/// The line under the titles of a table's columns: dashes between bars, with colons.
bool isRowOfDashes(QStringView line)
{
    const bool isOfMarks = std::all_of(line.begin(), line.end(), [](QChar unit) {
        return unit == u'|' || unit == u'-' || unit == u':' || unit == u' ' || unit == u'\t';
    });
    return isOfMarks && line.contains(u'-') && line.contains(u'|');
}

QString cellsOf(QStringView row)
{
    row = row.trimmed();
    if (row.startsWith(u'|'))
        row = row.sliced(1);
    if (row.endsWith(u'|'))
        row.chop(1);
    QString text;
    for (const QStringView cell : row.split(u'|'))
        text += cell.trimmed().toString() + u'\n';
    return text;
}

QString textOfTable(const QList<QStringView> &rows)
{
    QString text;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (i != 1)
            text += cellsOf(rows[i]);
    }
    return text;
}

bool isTaskBox(QStringView text)
{
    return text.startsWith(u"[ ] ") || text.startsWith(u"[x] ") || text.startsWith(u"[X] ");
}

} // namespace

QStringView behindFrontMatter(QStringView text)
{
    const QStringView opening = lineAt(text, 0).trimmed();
    if ((opening != u"---" && opening != u"+++") || text.startsWith(u' '))
        return text;
    for (qsizetype at = lineAt(text, 0).size() + 1; at < text.size();) {
        const QStringView line = lineAt(text, at);
        at = std::min(text.size(), at + line.size() + 1);
        const QStringView mark = line.trimmed();
        if (mark == opening || (opening == u"---" && mark == u"..."))
            return text.sliced(at);
    }
    return text;
}

QString withoutNoteLabels(QStringView text)
{
    QString rest;
    rest.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        QStringView line = lineAt(text, at);
        const bool isEnded = at + line.size() < text.size();
        at += line.size() + (isEnded ? 1 : 0);
        const qsizetype end = line.startsWith(u"[^") ? noteMarkEnd(line, 0) : 0;
        if (end > 0 && end < line.size() && line[end] == u':')
            line = line.sliced(end + 1).trimmed();
        rest += line;
        rest += isEnded ? QStringView(u"\n") : QStringView();
    }
    return rest;
}

QString proseOfBlock(QStringView block, bool mayBeTask)
{
    if (mayBeTask && isTaskBox(block))
        block = block.sliced(4);
    QString text = withoutNoteMarks(block);
    const QList<QStringView> lines = QStringView(text).split(u'\n');
    if (lines.size() > 1 && isRowOfDashes(lines[1]))
        return textOfTable(lines);
    text.replace(u'\n', u' ');
    return text.trimmed().isEmpty() ? QString() : text + u'\n';
}

QString textOfHtml(QStringView html)
{
    struct Skipped {
        QStringView start;
        QStringView end;
    };
    static constexpr std::array<Skipped, 4> skipped{
        {{u"<!--", u"-->"}, {u"<script", u"</script>"}, {u"<style", u"</style>"}, {u"<", u">"}}};
    QString text;
    for (qsizetype at = 0; at < html.size();) {
        if (html[at] != u'<') {
            text += html[at++];
            continue;
        }
        const QStringView rest = html.sliced(at);
        const auto *const part = std::find_if(skipped.begin(), skipped.end(),
            [rest](const Skipped &known) { return rest.startsWith(known.start, Qt::CaseInsensitive); });
        const qsizetype end = rest.indexOf(part->end, part->start.size(), Qt::CaseInsensitive);
        if (end < 0)
            break; // what does not end hides the rest
        at += end + part->end.size();
        text += u' ';
    }
    return text.simplified();
}
