// SPDX-License-Identifier: MIT
// ContentReader turns the elements of the content of an OpenDocument text into styled text: it decides which
// elements are text. Assembling paragraphs is left to StoryStack.
// Thread: one at a time.  Owner: OdtDocument.
#pragma once

#include "documents/odt/FormulaReader.h"
#include "documents/odt/StoryStack.h"

#include <QSet>

#include <functional>
#include <optional>
#include <vector>

class ContentReader final : public XmlHandler {
public:
    /// Passes the content of an object of the package to a handler, if there is one. name: of its folder.
    using ReadObject = std::function<void(const QByteArray &name, XmlHandler &handler)>;

    /// Styles must have been read when the first element arrives.
    ContentReader(const Styles &styles, ReadObject readObject)
        : m_stories(styles)
        , m_readObject(std::move(readObject))
    {
    }

    /// Elements and characters within office:text.
    void startElement(const XmlElement &element) override;
    void endElement(XmlName name) override;
    void characters(QByteArrayView text) override;

    /// Call once, after the last element.
    [[nodiscard]] AttributedString takeText() { return m_stories.takeText(); }
    [[nodiscard]] std::optional<DocumentError::Cause> error() const { return m_error; }

private:
    enum class Scope { Changes, Paragraph, Run, List, Cell, TextBox, Footnote, Endnote, Object };

    void startBlock(const XmlElement &element);
    void startInline(const XmlElement &element);
    void startField(const XmlElement &element);
    void beginParagraph(const XmlElement &element);
    /// Returns false, and skips the element, if the story is hidden or too deep.
    bool beginStory(Scope scope);
    void appendSpaces(const XmlElement &element);
    /// An object that is a formula is text of the paragraph that contains its frame.
    void beginObject(const XmlElement &element);
    void endObject();
    void readChange(const XmlElement &element);
    /// Returns whether the element is the start or the end of a change, which may be anywhere.
    bool followChange(const XmlElement &element);
    void leave(Scope scope);
    void enter(Scope scope) { m_scopes.push_back({m_depth, scope}); }
    void skipElement() { m_skippedDepth = m_depth; }

    struct OpenScope {
        int depth;
        Scope scope;
    };

    StoryStack m_stories;
    ReadObject m_readObject;
    std::optional<FormulaReader> m_formula; // set within an object
    int m_objects = 0;
    int m_depth = 0;
    int m_skippedDepth = 0; // of the outermost skipped element; 0 if there is none
    std::vector<OpenScope> m_scopes; // innermost last
    QByteArray m_change; // the identifier of the change that is declared
    QSet<QByteArray> m_deletions; // identifiers of changes
    QSet<QByteArray> m_openDeletions;
    qint64 m_spaces = 0; // that elements stand for
    std::optional<DocumentError::Cause> m_error;
};
