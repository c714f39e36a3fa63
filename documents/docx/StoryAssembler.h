// SPDX-License-Identifier: MIT
// StoryAssembler puts the paragraphs of a story (the body, a note, a text box) together and in order: it
// joins those whose mark is gone, sets text boxes behind their anchors and gives everything its attributes.
// Thread: one at a time.  Owner: StoryReader.
#pragma once

#include "documents/docx/DocumentStyles.h"
#include "documents/docx/ParagraphText.h"
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

    /// A story within another one is a text box; it goes behind the paragraph that is open there.
    void beginStory() { m_stories.emplace_back(); }
    /// keepsLast: a last paragraph that goes on in none is one even where it is empty.
    void endStory(bool keepsLast);
    [[nodiscard]] bool isInStory() const { return !m_stories.empty(); }
    [[nodiscard]] const Theme &theme() const { return m_styles.theme; }

    // Within a story.
    void beginParagraph();
    /// goesOn: as one whose mark is removed does.
    void endParagraph(bool goesOn);
    [[nodiscard]] bool isInParagraph() const { return m_stories.back().isParagraphOpen; }
    /// Something finished that stands between paragraphs.
    void insert(const AttributedString &text);

    // Within a paragraph. Its properties come before its text.
    [[nodiscard]] ParagraphProperties &paragraphProperties() { return paragraph().properties; }
    [[nodiscard]] RunProperties &markProperties() { return paragraph().mark; }
    [[nodiscard]] RunFormat formatOf(const RunProperties &direct);
    void append(QStringView text, const RunFormat &format) { paragraph().text.append(text, format); }
    /// Keeps what follows apart from the text so far.
    void separate() { paragraph().text.separate(); }

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
    /// The innermost one of the story; null outside of tables.
    [[nodiscard]] Table *table();
    void beginRow();
    void endRow();
    void beginCell();
    void endCell();

    /// The text of all stories that have ended since the last call.
    [[nodiscard]] AttributedString takeText() { return m_builder.build(); }

private:
    struct Paragraph {
        ParagraphText text;
        ParagraphProperties properties;
        RunProperties mark;
        std::list<AttributedString> anchored;
        std::optional<CharacterCascade> base; // of its runs, once its properties are known
    };
    struct Story {
        std::optional<Paragraph> paragraph; // the open one, or one that goes on in the next
        bool isParagraphOpen = false;
        std::vector<Table> tables;
        std::list<AttributedString> finished; // of a text box
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
