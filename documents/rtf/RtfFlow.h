// SPDX-License-Identifier: MIT
// RtfFlow collects text piece by piece, each in its own format: the body of a document, or the notes and text
// boxes that follow it. RtfAttributes turns formats into attributes.
// Thread: one.  Owner: RtfInterpreter.
#pragma once

#include "documents/rtf/RtfFontTable.h"
#include "documents/rtf/RtfFormat.h"
#include "platform/styled_text/AttributedString.h"

#include <QSet>
#include <QString>

#include <memory>
#include <optional>

/// Limits the number of distinct attributes, so that a small document cannot fill the memory with them. Text
/// beyond the limit gets the attributes of the text before it.
class RtfAttributes {
public:
    explicit RtfAttributes(const RtfFontTable &fonts)
        : m_fonts(fonts)
    {
    }

    [[nodiscard]] TextAttributes attributesOf(const RtfFormat &format) const;
    /// Whether text may have these attributes. Counts them if they are new.
    bool admit(const TextAttributes &attributes);

private:
    const RtfFontTable &m_fonts;
    QSet<size_t> m_admitted; ///< hashes
    size_t m_tabStopCount = 0; ///< in the admitted attributes
};

class RtfFlow {
public:
    explicit RtfFlow(RtfAttributes &attributes)
        : m_attributes(attributes)
    {
    }

    /// length: code units, at most. Memory pages that are not written cost nothing, and growing costs copies.
    void reserve(qsizetype length) { m_builder.reserve(length); }

    /// The buffer to which text in a format is appended; valid until the next call.
    QString &bufferFor(const RtfFormat &format);
    void appendAttachment(const RtfFormat &format, const std::shared_ptr<const Attachment> &attachment);
    /// Text that follows begins a new paragraph.
    void requireNewParagraph() { m_needsNewParagraph = true; }
    /// Puts a space between the text so far and the text that follows, unless one of them is missing or has
    /// white space there.
    void requireSpace();

    [[nodiscard]] bool isEmpty() const { return m_pending.isEmpty() && m_builder.length() == 0; }
    [[nodiscard]] QChar last() const { return m_pending.isEmpty() ? m_lastFlushed : m_pending.back(); }
    /// Moves the text of another flow to the end of this one, in paragraphs of its own.
    void append(RtfFlow &other);
    /// Returns the text and resets the flow to an empty one.
    AttributedString takeText();

private:
    void flush();
    void insertRequiredSpace();

    RtfAttributes &m_attributes;
    AttributedStringBuilder m_builder;
    QString m_pending; ///< has the attributes m_current
    TextAttributes m_current;
    RtfFormat m_format; ///< of m_current
    bool m_hasFormat = false;
    bool m_needsNewParagraph = false;
    std::optional<qsizetype> m_requiredSpaceAt; ///< in m_pending; applies once text follows
    QChar m_lastFlushed;
};
