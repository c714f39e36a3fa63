// SPDX-License-Identifier: MIT
// RtfFlow is text that grows piece by piece, each under the format of the moment: the body of a document, or
// what stands behind it. RtfAttributes turns formats into attributes. Thread: one.  Owner: the reading of one
// document.
#pragma once

#include "documents/rtf/RtfFontTable.h"
#include "documents/rtf/RtfFormat.h"
#include "platform/styled_text/AttributedString.h"

#include <QSet>
#include <QString>

#include <memory>
#include <optional>

/// Bounds what a document of few bytes can take of memory in attributes: a text that would need more of them
/// has those of the text before it.
class RtfAttributes {
public:
    explicit RtfAttributes(const RtfFontTable &fonts)
        : m_fonts(fonts)
    {
    }

    [[nodiscard]] TextAttributes of(const RtfFormat &format) const;
    /// Whether a text may have them; counts those that it has not been asked about before.
    bool admit(const TextAttributes &attributes);

private:
    const RtfFontTable &m_fonts;
    QSet<size_t> m_admitted; ///< hashes
    size_t m_tabStopCount = 0; ///< of the admitted
};

class RtfFlow {
public:
    explicit RtfFlow(RtfAttributes &attributes)
        : m_attributes(attributes)
    {
    }

    /// The place to append text of a format; valid until the next call.
    QString &under(const RtfFormat &format);
    void appendAttachment(const RtfFormat &format, const std::shared_ptr<const Attachment> &attachment);
    /// What comes next, if anything does, stands in another paragraph.
    void separate() { m_isSeparated = true; }
    /// Puts a space between the text so far and what comes next, unless one of them is missing or has white
    /// space there.
    void standApart();

    [[nodiscard]] bool isEmpty() const { return m_pending.isEmpty() && m_builder.length() == 0; }
    [[nodiscard]] QChar last() const { return m_pending.isEmpty() ? m_lastFlushed : m_pending.back(); }
    /// Appends another flow's text in paragraphs of its own.
    void append(RtfFlow &other);
    AttributedString take();

private:
    void flush();
    void insertSpaceBetweenParts();

    RtfAttributes &m_attributes;
    AttributedStringBuilder m_builder;
    QString m_pending; ///< under m_current
    TextAttributes m_current;
    RtfFormat m_format; ///< of m_current
    bool m_hasFormat = false;
    bool m_isSeparated = false;
    std::optional<qsizetype> m_partsMeetAt; ///< in m_pending; no text of the second part is there before
    QChar m_lastFlushed;
};
