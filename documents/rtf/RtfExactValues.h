// SPDX-License-Identifier: MIT
// RtfExactValues is the table of exact values of docs/rtf.md, which says what RTF's own words cannot.
// Thread: one.  Owner: the reading of one document.
#pragma once

#include "documents/rtf/RtfFormat.h"

#include <QHash>
#include <QString>
#include <QStringView>

class RtfExactValues {
public:
    /// A group of the table. kind: the action of its word. What makes no sense is passed over.
    void add(RtfAction kind, qint32 number, QStringView value);

    /// Each is null where the table has none of the number.
    [[nodiscard]] const FontAttributes *font(qint32 number) const { return found(m_fonts, number); }
    [[nodiscard]] const QSharedDataPointer<RtfParagraphFormat> *paragraph(qint32 number) const
    {
        return found(m_paragraphs, number);
    }
    [[nodiscard]] const QString *language(qint32 number) const { return found(m_languages, number); }
    [[nodiscard]] const QString *fileName(qint32 number) const { return found(m_fileNames, number); }

private:
    template <typename Value>
    static const Value *found(const QHash<qint32, Value> &values, qint32 number)
    {
        const auto value = values.constFind(number);
        return value == values.cend() ? nullptr : &*value;
    }

    QHash<qint32, FontAttributes> m_fonts;
    QHash<qint32, QSharedDataPointer<RtfParagraphFormat>> m_paragraphs;
    QHash<qint32, QString> m_languages;
    QHash<qint32, QString> m_fileNames;
};
