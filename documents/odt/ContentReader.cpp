// SPDX-License-Identifier: MIT
#include "documents/odt/ContentReader.h"

#include <algorithm>

namespace {

constexpr size_t maxStories = 20; // inside each other; each one copies the text of those in it
constexpr qint64 maxSpaces = 1'000'000; // of a document, in elements that stand for many
constexpr int maxObjects = 20'000; // each one takes time, however short
constexpr char16_t lineBreak[] = u"\u2028";

/// Whether a section, or the text of a field, is not on the page.
bool isHidden(const XmlElement &element)
{
    const QByteArrayView display = odfAttribute(element, "text:display"_odf).value_or("true");
    return display == "none"
        || (display == "condition" && odfAttribute(element, "text:is-hidden"_odf) == "true");
}

QByteArray styleOf(const XmlElement &element)
{
    return odfAttribute(element, "text:style-name"_odf).value_or("").toByteArray();
}

bool isDrawing(const XmlElement &element)
{
    switch (odfName(element)) {
    case "draw:frame"_odf:
    case "draw:g"_odf:
    case "draw:a"_odf:
    case "draw:custom-shape"_odf:
    case "draw:rect"_odf:
    case "draw:ellipse"_odf:
    case "draw:circle"_odf:
    case "draw:line"_odf:
    case "draw:polyline"_odf:
    case "draw:polygon"_odf:
    case "draw:regular-polygon"_odf:
    case "draw:path"_odf:
    case "draw:connector"_odf:
    case "draw:caption"_odf:
    case "draw:measure"_odf:
        return true;
    default:
        return false;
    }
}

/// Whether the content of an element between paragraphs is read like its own place.
bool isContainer(const XmlElement &element)
{
    switch (odfName(element)) {
    case "text:section"_odf:
    case "text:table-of-content"_odf:
    case "text:illustration-index"_odf:
    case "text:table-index"_odf:
    case "text:object-index"_odf:
    case "text:user-index"_odf:
    case "text:alphabetical-index"_odf:
    case "text:bibliography"_odf:
    case "text:index-title"_odf:
    case "text:index-body"_odf:
    case "text:list-item"_odf:
    case "text:list-header"_odf:
    case "text:numbered-paragraph"_odf:
    case "text:note-body"_odf:
    case "table:table"_odf:
    case "table:table-header-rows"_odf:
    case "table:table-rows"_odf:
    case "table:table-row-group"_odf:
    case "table:table-row"_odf:
    case "draw:text-box"_odf:
        return true;
    default:
        return isDrawing(element);
    }
}

} // namespace

void ContentReader::startElement(const XmlElement &element)
{
    ++m_depth;
    if (m_skippedDepth > 0)
        return;
    if (m_error)
        skipElement();
    else if (m_formula)
        m_formula->startElement(element);
    else if (!m_scopes.empty() && m_scopes.back().scope == Scope::Changes)
        readChange(element);
    else if (followChange(element))
        return;
    else if (m_stories.isInParagraph())
        startInline(element);
    else
        startBlock(element);
}

void ContentReader::endElement(XmlName name)
{
    if (m_skippedDepth == m_depth)
        m_skippedDepth = 0;
    else if (m_skippedDepth == 0 && m_formula && !m_formula->isAtEnd())
        m_formula->endElement(name);
    while (!m_scopes.empty() && m_scopes.back().depth == m_depth) {
        const Scope scope = m_scopes.back().scope;
        m_scopes.pop_back();
        leave(scope);
    }
    --m_depth;
}

void ContentReader::leave(Scope scope)
{
    switch (scope) {
    case Scope::Changes:
        break;
    case Scope::Paragraph:
        m_stories.endParagraph();
        break;
    case Scope::Run:
        m_stories.endRun();
        break;
    case Scope::List:
        m_stories.endList();
        break;
    case Scope::Cell:
        m_stories.endCell();
        break;
    case Scope::TextBox:
        m_stories.endTextBox();
        break;
    case Scope::Footnote:
        m_stories.endNote(StoryStack::Note::Footnote);
        break;
    case Scope::Endnote:
        m_stories.endNote(StoryStack::Note::Endnote);
        break;
    case Scope::Object:
        endObject();
        break;
    }
}

void ContentReader::characters(QByteArrayView text)
{
    if (m_skippedDepth == 0 && m_formula)
        m_formula->characters(text);
    else if (m_skippedDepth == 0 && m_stories.isInParagraph())
        m_stories.appendCollapsed(QString::fromUtf8(text));
}

void ContentReader::startBlock(const XmlElement &element)
{
    switch (odfName(element)) {
    case "text:p"_odf:
    case "text:h"_odf:
        beginParagraph(element);
        break;
    case "text:list"_odf:
        m_stories.beginList(styleOf(element));
        enter(Scope::List);
        break;
    case "draw:object"_odf:
        beginObject(element);
        break;
    case "text:tracked-changes"_odf:
        enter(Scope::Changes);
        break;
    case "table:table-cell"_odf:
        m_stories.beginCell();
        enter(Scope::Cell);
        break;
    default:
        // Among what is left out: sources of indexes, labels of lists, comments, forms,
        // covered cells, pictures with their alternative texts.
        if (!isContainer(element) || isHidden(element))
            skipElement();
        break;
    }
}

void ContentReader::beginParagraph(const XmlElement &element)
{
    m_stories.beginParagraph(styleOf(element));
    enter(Scope::Paragraph);
}

void ContentReader::startInline(const XmlElement &element)
{
    switch (odfName(element)) {
    case "text:span"_odf:
    case "text:a"_odf:
        m_stories.beginRun(styleOf(element));
        enter(Scope::Run);
        break;
    case "text:s"_odf:
        appendSpaces(element);
        break;
    case "text:tab"_odf:
        m_stories.append(u"\t");
        break;
    case "text:line-break"_odf:
        m_stories.append(lineBreak);
        break;
    case "text:note"_odf: {
        m_stories.endWhiteSpace();
        const bool isEndnote = odfAttribute(element, "text:note-class"_odf) == "endnote";
        beginStory(isEndnote ? Scope::Endnote : Scope::Footnote);
        break;
    }
    case "text:p"_odf: // not valid in another paragraph, but read as a text box
    case "text:h"_odf:
        if (beginStory(Scope::TextBox))
            beginParagraph(element);
        break;
    default:
        if (isDrawing(element)) {
            m_stories.endWhiteSpace();
            beginStory(Scope::TextBox);
        } else {
            startField(element);
        }
        break;
    }
}

void ContentReader::startField(const XmlElement &element)
{
    switch (odfName(element)) {
    case "text:hidden-paragraph"_odf:
        if (odfAttribute(element, "text:is-hidden"_odf) == "true")
            m_stories.hideParagraph();
        skipElement();
        break;
    case "text:hidden-text"_odf:
        if (odfAttribute(element, "text:is-hidden"_odf) == "true")
            skipElement();
        break;
    case "text:ruby-text"_odf:
    case "text:script"_odf:
    case "text:number"_odf:
        skipElement();
        break;
    case "loext:content-control"_odf:
        break;
    default: // Other elements of text are fields, whose shown text is their content.
        if (element.name().space != odfTextSpace || isHidden(element))
            skipElement();
        break;
    }
}

void ContentReader::readChange(const XmlElement &element)
{
    switch (odfName(element)) {
    case "text:changed-region"_odf:
        m_change = odfAttribute(element, "text:id"_odf).value_or("").toByteArray();
        break;
    case "text:deletion"_odf:
        if (!m_change.isEmpty())
            m_deletions.insert(m_change);
        skipElement(); // deleted text that is stored here and not in the body
        break;
    default:
        skipElement();
        break;
    }
}

bool ContentReader::followChange(const XmlElement &element)
{
    const OdfName name = odfName(element);
    if (name != "text:change-start"_odf && name != "text:change-end"_odf)
        return false;
    const QByteArray change = odfAttribute(element, "text:change-id"_odf).value_or("").toByteArray();
    if (name == "text:change-end"_odf)
        m_openDeletions.remove(change);
    else if (m_deletions.contains(change))
        m_openDeletions.insert(change);
    m_stories.setDeleting(!m_openDeletions.isEmpty());
    return true;
}

bool ContentReader::beginStory(Scope scope)
{
    if (!m_stories.isShown()) {
        skipElement();
        return false;
    }
    if (m_stories.depth() == maxStories) {
        m_error = DocumentError::Cause::TooComplex;
        skipElement();
        return false;
    }
    m_stories.beginStory();
    enter(scope);
    return true;
}

void ContentReader::beginObject(const XmlElement &element)
{
    if (m_stories.depth() == 0 || ++m_objects > maxObjects) {
        if (m_objects > maxObjects)
            m_error = DocumentError::Cause::TooComplex;
        skipElement();
        return;
    }
    m_stories.suspendStory();
    enter(Scope::Object);
    if (!m_stories.isInParagraph()) {
        skipElement();
        return;
    }
    m_formula.emplace(m_stories);
    // A flat document has the formula within the element, a package in another part.
    if (const auto name = odfAttribute(element, "xlink:href"_odf)) {
        FormulaReader formula(m_stories);
        m_readObject(name->startsWith("./") ? name->sliced(2).toByteArray() : name->toByteArray(), formula);
    }
}

void ContentReader::endObject()
{
    m_formula.reset();
    m_stories.resumeStory();
}

void ContentReader::appendSpaces(const XmlElement &element)
{
    const int count = std::max(1, integerOf(odfAttribute(element, "text:c"_odf)).value_or(1));
    m_spaces += count;
    if (m_spaces > maxSpaces)
        m_error = DocumentError::Cause::TooComplex;
    else
        m_stories.append(QString(count, u' '));
}
