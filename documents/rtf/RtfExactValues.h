// SPDX-License-Identifier: MIT
// RtfExactValues holds the table of exact values of docs/rtf.md, which RTF's own words cannot express.
// Thread: one.  Owner: RtfInterpreter.
#pragma once

#include "documents/rtf/RtfFormat.h"

#include <QHash>
#include <QString>
#include <QStringView>

class RtfExactValues {
public:
    /// Adds a group of the table; ignores an invalid value. kind: the action of its word.
    void add(RtfAction kind, qint32 number, QStringView value);

    // Each is null if the table has no such number.
    [[nodiscard]] const FontAttributes *font(qint32 number) const { return find(m_fonts, number); }
    [[nodiscard]] const QSharedDataPointer<RtfParagraphFormat> *paragraph(qint32 number) const
    {
        return find(m_paragraphs, number);
    }
    [[nodiscard]] const QString *language(qint32 number) const { return find(m_languages, number); }
    [[nodiscard]] const QString *fileName(qint32 number) const { return find(m_fileNames, number); }

private:
    template <typename Value>
    static const Value *find(const QHash<qint32, Value> &values, qint32 number)
    {
        const auto value = values.constFind(number);
        return value == values.cend() ? nullptr : &*value;
    }

    QHash<qint32, FontAttributes> m_fonts;
    QHash<qint32, QSharedDataPointer<RtfParagraphFormat>> m_paragraphs;
    QHash<qint32, QString> m_languages;
    QHash<qint32, QString> m_fileNames;
};
