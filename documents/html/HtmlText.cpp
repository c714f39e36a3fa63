// SPDX-License-Identifier: MIT
#include "documents/html/HtmlText.h"

#include "documents/html/HtmlStyle.h"
#include "documents/html/RenderedText.h"
#include "documents/html/StyleCascade.h"

#include <vector>

namespace {

class TreeWalk {
public:
    TreeWalk(const GumboNode &document, const StyleSheets &sheets, qsizetype pageLength)
        : m_cascade(sheets, pageLength)
    {
        Frame root;
        root.children = &document.v.document.children;
        root.style = rootStyle();
        m_frames.push_back(std::move(root));
    }

    Result<AttributedString, DocumentError::Cause> readText()
    {
        while (!m_frames.empty()) {
            if (m_cascade.isTooComplex())
                return DocumentError::Cause::TooComplex;
            Frame &frame = m_frames.back();
            if (frame.next < frame.children->length)
                visit(*static_cast<const GumboNode *>(frame.children->data[frame.next++]));
            else
                leave();
        }
        return m_text.build();
    }

private:
    /// An open element.
    struct Frame {
        const GumboVector *children = nullptr;
        unsigned int next = 0; ///< child
        HtmlStyle style;
        SharedAttributes attributes; ///< of its text; null until it is needed
        bool isParagraph = false; ///< a p element with any display
        bool isClosedDetails = false;
        size_t box = 0; ///< index of the frame with the box of this element or of the nearest one around it
    };

    void visit(const GumboNode &node)
    {
        // The parser still expands isindex to a form with text; the current standard ignores the element.
        if (node.parse_flags & GUMBO_INSERTION_FROM_ISINDEX)
            return;
        switch (node.type) {
        case GUMBO_NODE_ELEMENT:
            return enter(node.v.element);
        case GUMBO_NODE_TEXT:
        case GUMBO_NODE_CDATA:
        case GUMBO_NODE_WHITESPACE:
            return addText(node);
        default:
            return;
        }
    }

    void addText(const GumboNode &node)
    {
        const HtmlStyle &style = m_frames.back().style;
        if (!style.isVisible || !style.rendersText || m_frames.back().isClosedDetails)
            return;
        if (node.type == GUMBO_NODE_WHITESPACE && isBetweenCells(m_frames[m_frames.back().box].style.display))
            return;
        m_text.append(QString::fromUtf8(node.v.text.text), style.whiteSpace, attributes(m_frames.size() - 1));
    }

    static bool isBetweenCells(Display display)
    {
        return display == Display::Table || display == Display::InlineTable
            || display == Display::TableRowGroup || display == Display::TableRow;
    }

    void enter(const GumboElement &element)
    {
        Frame frame;
        frame.children = &element.children;
        frame.style = styleOf(element, m_frames.back().style, m_cascade.enter(element));
        if (frame.style.display == Display::None || isHiddenByDetails(element))
            return m_cascade.leave();
        if (!frame.style.rendersChildren)
            frame.next = element.children.length;
        frame.isParagraph = element.tag == GUMBO_TAG_P && element.tag_namespace == GUMBO_NAMESPACE_HTML;
        frame.isClosedDetails =
            element.tag == GUMBO_TAG_DETAILS && !gumbo_get_attribute(&element.attributes, "open");
        const size_t parentBox = m_frames.back().box;
        const Display display = frame.style.display;
        frame.box = display == Display::Contents || display == Display::Inline ? parentBox : m_frames.size();
        m_frames.push_back(std::move(frame));
        if (display == Display::Contents)
            return;
        beginBox();
        if (element.tag == GUMBO_TAG_BR && m_frames.back().style.isVisible)
            m_text.appendLineBreak(attributes(m_frames.size() - 1));
    }

    /// A closed details element shows only its first summary.
    bool isHiddenByDetails(const GumboElement &element)
    {
        Frame &parent = m_frames.back();
        if (!parent.isClosedDetails)
            return false;
        if (element.tag != GUMBO_TAG_SUMMARY)
            return true;
        parent.next = parent.children->length;
        return false;
    }

    void beginBox()
    {
        const HtmlStyle &style = m_frames.back().style;
        if (isBoxInLine(style.display))
            m_text.placeBox();
        if (style.display != Display::Inline)
            m_text.startLine();
        requireLineBreaks();
        if (style.display == Display::TableCell && style.isVisible)
            m_text.beginCell();
        addFormulaSpace();
    }

    void endBox()
    {
        const HtmlStyle &style = m_frames.back().style;
        addFormulaSpace();
        if (style.display != Display::Inline)
            m_text.startLine();
        if (isBoxInLine(style.display))
            m_text.placeBox();
        requireLineBreaks();
        if (style.display == Display::TableCell && style.isVisible)
            m_text.endCell(attributes(m_frames.size() - 1));
    }

    static bool isBoxInLine(Display display)
    {
        return display == Display::InlineBlock || display == Display::InlineFlex
            || display == Display::InlineTable;
    }

    void addFormulaSpace()
    {
        const HtmlStyle &style = m_frames.back().style;
        if (style.isFormulaPart && style.isVisible)
            m_text.appendSpace(attributes(m_frames.size() - 1));
    }

    void requireLineBreaks()
    {
        const Frame &frame = m_frames.back();
        if (!frame.style.isVisible)
            return;
        const Display display = frame.style.display;
        if (frame.isParagraph)
            m_text.requireLineBreaks(2);
        else if (display == Display::Block || display == Display::Flex || display == Display::Table
            || display == Display::TableCaption || display == Display::TableRow)
            m_text.requireLineBreaks(1);
    }

    void leave()
    {
        if (m_frames.back().style.display != Display::Contents)
            endBox();
        m_frames.pop_back();
        if (!m_frames.empty())
            m_cascade.leave();
    }

    const SharedAttributes &attributes(size_t index)
    {
        Frame &frame = m_frames[index];
        if (!frame.attributes)
            frame.attributes = std::make_shared<const TextAttributes>(
                TextAttributes{frame.style.font, frame.style.paragraph, frame.style.language, nullptr});
        return frame.attributes;
    }

    std::vector<Frame> m_frames;
    StyleCascade m_cascade;
    RenderedText m_text;
};

} // namespace

Result<AttributedString, DocumentError::Cause> textOfPage(
    const GumboNode &document, const StyleSheets &sheets, qsizetype pageLength)
{
    return TreeWalk(document, sheets, pageLength).readText();
}
