// SPDX-License-Identifier: MIT
// The parts of Markdown that CommonMark does not know and writers use: front matter, footnotes, tables, the
// boxes of tasks. Each is found by its lines alone.
// Thread: any.
#pragma once

#include <QString>
#include <QStringView>

/// What follows the front matter: a first line of --- or +++, up to the next such line, or to ... for the
/// first. All of the text where there is none, or where it does not end.
QStringView behindFrontMatter(QStringView text);

/// The text without the marks [^name]: that begin the notes.
QString withoutNoteLabels(QStringView text);

/// One paragraph or heading as it is counted, with U+000A at its end; empty if nothing is left. block: its
/// lines end with U+000A, hard ones with U+2028. The text of a table is its cells, each a paragraph.
QString proseOfBlock(QStringView block, bool mayBeTask);

/// The text of HTML without tags, comments, scripts and style sheets, on one line.
QString textOfHtml(QStringView html);
