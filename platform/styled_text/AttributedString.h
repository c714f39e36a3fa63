// SPDX-License-Identifier: MIT
// AttributedString is immutable UTF-16 text with attribute runs, the form in which every document reaches
// counting and layout. AttributedStringBuilder makes one.
// Thread: any; copies share their content. A builder belongs to one thread.
#pragma once

#include "platform/styled_text/TextAttributes.h"

#include <QHash>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

/// The character that represents an attachment in the text.
inline constexpr char16_t attachmentCharacter = u'\uFFFC';

/// Positions and lengths are UTF-16 code units. Runs cover the text in order and without gaps. No run is
/// empty, and neighbouring runs differ. An empty text has no runs. Each distinct set of attributes is stored
/// once.
class AttributedString {
public:
    struct Run {
        qsizetype start;
        qsizetype length;
        quint32 attributesIndex; ///< into distinctAttributes(): equal index, equal attributes
    };

    /// Reaches to the start of the next run, or to the end of the text.
    struct RunStart {
        qsizetype start;
        quint32 attributesIndex;
    };

    AttributedString() = default;
    explicit AttributedString(const QString &text, const TextAttributes &attributes = {});
    /// Absent unless the runs are as described above and each refers to one of the attributes. Whether these
    /// are distinct is left to the caller.
    static std::optional<AttributedString> fromParts(
        QString text, std::vector<RunStart> runs, std::vector<TextAttributes> attributes);

    [[nodiscard]] const QString &string() const;
    [[nodiscard]] qsizetype length() const { return string().size(); }
    [[nodiscard]] bool isEmpty() const { return string().isEmpty(); }

    [[nodiscard]] qsizetype runCount() const;
    /// index: 0 to runCount() - 1.
    [[nodiscard]] Run run(qsizetype index) const;
    /// The index of the run that contains a position (0 to length() - 1). Takes logarithmic time.
    [[nodiscard]] qsizetype runIndexAt(qsizetype position) const;

    [[nodiscard]] const std::vector<TextAttributes> &distinctAttributes() const;
    /// position: 0 to length() - 1.
    [[nodiscard]] const TextAttributes &attributesAt(qsizetype position) const;

    /// Whether the texts are equal and have equal attributes at every position.
    bool operator==(const AttributedString &other) const;

private:
    friend class AttributedStringBuilder;
    struct Content {
        QString text;
        std::vector<RunStart> runs;
        std::vector<TextAttributes> attributes;
    };
    explicit AttributedString(std::shared_ptr<const Content> content)
        : m_content(std::move(content))
    {
    }
    [[nodiscard]] const Content &content() const;

    std::shared_ptr<const Content> m_content; ///< null for the empty string
};

/// Appending takes time proportional to the length of the piece.
class AttributedStringBuilder {
public:
    void append(QStringView text, const TextAttributes &attributes);
    void append(const AttributedString &text);
    /// length: expected length of the whole text, in code units.
    void reserve(qsizetype length) { m_content.text.reserve(length); }
    [[nodiscard]] qsizetype length() const { return m_content.text.size(); }

    /// Returns the text and resets the builder to an empty text.
    [[nodiscard]] AttributedString build();

private:
    [[nodiscard]] quint32 indexOf(const TextAttributes &attributes);

    AttributedString::Content m_content;
    QHash<TextAttributes, quint32> m_indices;
};
