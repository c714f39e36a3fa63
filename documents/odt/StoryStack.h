// SPDX-License-Identifier: MIT
// StoryStack assembles the paragraphs of the stories of an OpenDocument text: the body, and the notes and
// text boxes within it. Deciding which elements are text is left to ContentReader.
// Thread: one at a time. Owner: ContentReader.
#pragma once

#include "documents/odt/Styles.h"
#include "documents/package/ParagraphText.h"
#include "platform/styled_text/AttributedString.h"

#include <QByteArray>
#include <QStringView>

#include <optional>
#include <vector>

class StoryStack {
public:
    enum class Note { Footnote, Endnote };

    explicit StoryStack(const Styles &styles)
        : m_styles(styles)
        , m_stories(1)
    {
    }

    /// Stories within the body that are open.
    [[nodiscard]] size_t depth() const { return m_stories.size() - 1; }
    void beginStory() { m_stories.emplace_back(); }
    /// Between the two, the story around the innermost one is open again.
    void suspendStory();
    void resumeStory();
    /// The text of the innermost story follows the paragraph that contains it.
    void endTextBox();
    /// The text of the innermost story follows the body.
    void endNote(Note kind);

    void beginList(const QByteArray &style);
    void endList() { story().lists.pop_back(); }
    void beginCell();
    void endCell();

    /// Whether what follows is deleted; a paragraph that ends meanwhile continues in the next one.
    void setDeleting(bool isDeleting) { m_isDeleting = isDeleting; }

    [[nodiscard]] bool isInParagraph() const { return m_stories.back().isParagraphOpen; }
    void beginParagraph(const QByteArray &style);
    void endParagraph();

    // For use within a paragraph.
    /// style: of characters; empty for none.
    void beginRun(const QByteArray &style);
    void endRun() { paragraph().runs.pop_back(); }
    /// Whether text here is on the page.
    [[nodiscard]] bool isShown() { return !m_isDeleting && !run().text.isHidden.value_or(false); }
    void hideParagraph() { paragraph().isHidden = true; }
    /// Appends text with its white space.
    void append(QStringView text);
    /// See ParagraphText.
    void requireSpace() { paragraph().text.requireSpace(); }
    /// Appends text with a space in place of each stretch of white space, and none at the start of the
    /// paragraph.
    void appendCollapsed(QStringView text);
    /// An object stands here, after which white space counts again.
    void endWhiteSpace() { paragraph().collapsesSpace = false; }

    /// Returns the body, the footnotes and the endnotes. Call once, after the last element.
    [[nodiscard]] AttributedString takeText();

private:
    struct Run {
        TextFormat text; ///< with all levels applied
        std::optional<ScriptFormats> formats; ///< made when the first character arrives
    };
    struct Paragraph {
        QByteArray style;
        ParagraphText text;
        std::vector<Run> runs; ///< innermost last; the first one is the paragraph itself
        std::vector<AttributedString> anchored; ///< text boxes
        bool collapsesSpace = true; ///< whether white space is ignored, as some precedes it
        bool hasHiddenText = false;
        bool isHidden = false;
        bool isDeleted = false;
    };
    struct Story {
        std::optional<Paragraph> paragraph; ///< the open one, or one that continues in the next
        bool isParagraphOpen = false;
        std::vector<QByteArray> lists; ///< the styles of the open ones, innermost last
        std::vector<bool> cells; ///< whether an open one has a paragraph, innermost last
        AttributedStringBuilder text;
    };

    [[nodiscard]] Story &story() { return m_stories.back(); }
    [[nodiscard]] Paragraph &paragraph() { return *story().paragraph; }
    [[nodiscard]] Run &run() { return paragraph().runs.back(); }
    [[nodiscard]] static const ScriptFormats &formatsOf(Run &run);
    [[nodiscard]] bool isOnPage();
    void finishParagraph();
    /// Finishes a paragraph that has none to continue in.
    void finishPending();
    [[nodiscard]] AttributedString endStory();

    const Styles &m_styles;
    std::vector<Story> m_stories; // innermost last
    std::optional<Story> m_suspended;
    AttributedStringBuilder m_footnotes;
    AttributedStringBuilder m_endnotes;
    bool m_isDeleting = false;
};
