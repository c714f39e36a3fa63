// SPDX-License-Identifier: MIT
// StoryAssembler assembles the paragraphs of a story (the body, a note, a text box): it joins paragraphs
// whose mark is removed, places text boxes after their anchors, and resolves attributes. StoryReader feeds
// it.
// Thread: one at a time.  Owner: StoryReader.
#pragma once

#include "documents/docx/PackageDocument.h"
#include "documents/docx/RunProperties.h"
#include "documents/package/ParagraphText.h"
#include "platform/styled_text/AttributedString.h"

#include <list>
#include <optional>
#include <vector>

class StoryAssembler {
public:
    explicit StoryAssembler(const DocumentStyles &styles)
        : m_styles(styles)
    {
    }

    /// A story within another one is a text box. Its text follows the open paragraph.
    void beginStory() { m_stories.emplace_back(); }
    /// keepsEmptyLast: whether an empty last paragraph that would continue in a next one is kept.
    void endStory(bool keepsEmptyLast);
    [[nodiscard]] bool isInStory() const { return !m_stories.empty(); }
    [[nodiscard]] const Theme &theme() const { return m_styles.theme; }

    // For use within a story.
    void beginParagraph();
    /// continues: whether the next paragraph continues this one, as if its mark were removed.
    void endParagraph(bool continues);
    [[nodiscard]] bool isInParagraph() const { return m_stories.back().isParagraphOpen; }
    /// Inserts complete paragraphs between those of the story.
    void insert(const AttributedString &text);

    // For use within a paragraph. Set its properties before its text.
    [[nodiscard]] ParagraphProperties &paragraphProperties() { return paragraph().properties; }
    [[nodiscard]] RunProperties &markProperties() { return paragraph().mark; }
    [[nodiscard]] RunFormat formatOf(const RunProperties &direct);
    void append(QStringView text, const RunFormat &format) { paragraph().text.append(text, format); }
    /// See ParagraphText.
    void requireSpace() { paragraph().text.requireSpace(); }

    struct Table {
        QByteArray style;
        TableParts partsOfRow = 0;
        TableParts partsOfCell = 0;
        bool isRowRemoved = false;
        bool isCellRemoved = false;
        bool hasParagraphInCell = false;
    };
    void beginTable() { m_stories.back().tables.emplace_back(); }
    void endTable();
    /// The innermost table of the story; null outside of tables.
    [[nodiscard]] Table *table();
    void beginRow();
    void endRow();
    void beginCell();
    void endCell();

    /// Returns the text of all stories that have ended since the last call.
    [[nodiscard]] AttributedString takeText() { return m_builder.build(); }

private:
    struct Paragraph {
        ParagraphText text;
        ParagraphProperties properties;
        RunProperties mark;
        std::list<AttributedString> anchored; // text boxes
        std::optional<CharacterCascade> base; // of its runs; set once its properties are known
    };
    struct Story {
        std::optional<Paragraph> paragraph; // the open one, or one that continues in the next
        bool isParagraphOpen = false;
        std::vector<Table> tables;
        std::list<AttributedString> finished; // paragraphs of a text box
    };

    [[nodiscard]] Paragraph &paragraph() { return *m_stories.back().paragraph; }
    [[nodiscard]] const StyleProperties &tableStyle();
    [[nodiscard]] const CharacterCascade &base();
    [[nodiscard]] ParagraphStyle paragraphStyle(double pointSize);
    [[nodiscard]] bool isDropCap();
    void finishParagraph();
    void finishPending(bool evenIfEmpty = false);
    void emitText(const AttributedString &text);

    const DocumentStyles &m_styles;
    std::vector<Story> m_stories; // innermost last
    AttributedStringBuilder m_builder;
};
