// SPDX-License-Identifier: MIT
// MarkedText prints a text for people, line by line, with what counted in [square brackets] and what did not
// in {curly ones}, and the reasons below each line. It prints while it gets the items, and stores none but a
// few of the open line.
// Thread: one at a time.  Owner: the explain command; of one pass over one text.
#pragma once

#include "text_statistics/CountedItem.h"

#include <QByteArray>
#include <QByteArrayList>

#include <array>

class MarkedText {
public:
    /// text, rules: must outlive the object.
    MarkedText(QStringView text, const TextRules &rules)
        : m_text(text)
        , m_rules(rules)
    {
    }

    /// The items of one statistic, in the order of the text.
    void add(const CountedItem &item);
    /// Prints the rest of the text.
    void finish();

    /// Instead of add(): prints an item alone, with the text of its line around it.
    void addAlone(const CountedItem &item);

private:
    /// What was not counted in the open line, for one reason.
    struct Note {
        QByteArrayList excerpts;
        qsizetype count = 0;
    };

    void printUpTo(qsizetype end);
    void printPiece(qsizetype start, qsizetype end);
    void print(const QByteArray &bytes);
    void endLine();
    void skipTo(qsizetype end);
    void addNote(const CountedItem &item);

    QStringView m_text;
    const TextRules &m_rules;
    qsizetype m_position = 0; // printed up to here
    qsizetype m_line = 1; // the number of the open line
    bool m_isLineStarted = false;
    std::array<Note, countingReasonCount> m_notes;
};
