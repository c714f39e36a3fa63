// SPDX-License-Identifier: MIT
// StoryReader turns the elements of a part with text (the main part, footnotes, endnotes) into styled text:
// it decides which elements are text. Assembling paragraphs is left to StoryAssembler.
// Thread: one at a time.  Owner: DocxReader.
#pragma once

#include "documents/docx/OfficeXml.h"
#include "documents/docx/StoryAssembler.h"

#include <QByteArray>
#include <QHash>

#include <functional>
#include <optional>
#include <vector>

/// The identifiers of the notes that a text refers to, without repetitions, in order.
class NoteReferences {
public:
    void add(const QByteArray &identifier);
    [[nodiscard]] bool contains(const QByteArray &identifier) const { return m_places.contains(identifier); }
    [[nodiscard]] const std::vector<QByteArray> &inOrder() const { return m_inOrder; }

private:
    std::vector<QByteArray> m_inOrder;
    QHash<QByteArray, qsizetype> m_places;
};

struct StoryNotes {
    NoteReferences footnotes;
    NoteReferences endnotes;
};

/// Finds the parts of a formula (ECMA-376, Office Math) that are set apart from their neighbours on the page:
/// the numerator and denominator of a fraction, the cells of a matrix, the lines of an equation array.
class FormulaParts {
public:
    /// Call both for each element of a formula, with its depth in the document. True if a space is required
    /// here.
    bool startElement(XmlTag tag, int depth);
    bool endElement(XmlTag tag, int depth);

private:
    [[nodiscard]] bool isSetApart(XmlTag tag, int depth) const;

    std::vector<int> m_rows; // depths of the open rows of matrices and equation arrays, innermost last
};

class StoryReader final : public XmlHandler {
public:
    /// Returns the text of a chunk in another format. identifier: of its relationship.
    using ReadChunk =
        std::function<Result<AttributedString, DocumentError::Cause>(const QByteArray &identifier)>;

    /// notes: receives the references in the text.
    StoryReader(const DocumentStyles &styles, StoryNotes &notes, ReadChunk readChunk);

    void startElement(const XmlElement &element) override;
    void endElement(XmlName name) override;
    void characters(QByteArrayView text) override;

    /// Returns the body of the main part.
    [[nodiscard]] AttributedString takeBody() { return m_assembler.takeText(); }
    /// Must be called before a part with notes is read. Only these notes are read.
    void setWantedNotes(const NoteReferences *wanted) { m_wantedNotes = wanted; }
    [[nodiscard]] AttributedString note(const QByteArray &identifier) const
    {
        return m_noteTexts.value(identifier);
    }
    /// The first failure to read a chunk.
    [[nodiscard]] std::optional<DocumentError::Cause> error() const { return m_error; }

private:
    static constexpr char16_t lineBreak[] = u"\u2028";
    static constexpr char16_t pageBreak[] = u"\u000C";

    enum class Mode { Content, Text, ParagraphProperties, MarkProperties, RunProperties, Table, Row, Cell };
    struct Scope {
        int depth;
        Mode mode;
    };
    /// An element with xml:space, which applies to its content.
    struct SpaceScope {
        int depth;
        bool isKept;
    };
    struct Run {
        RunProperties direct;
        std::optional<RunFormat> format; // set once its properties are known
    };
    /// State that each story has of its own.
    struct StoryState {
        int depth; // of the element of the story
        Run run;
        std::vector<bool> fields; // open fields: whether the result has begun
        int fieldsWithoutResult = 0;
        bool keepsSpace = false;
    };

    [[nodiscard]] Mode mode() const { return m_scopes.empty() ? Mode::Content : m_scopes.back().mode; }
    void enter(Mode mode) { m_scopes.push_back({m_depth, mode}); }
    void skipElement() { m_skippedDepth = m_depth; }

    void startContent(const XmlElement &element);
    void startMath(XmlTag tag);
    void startWordContent(const XmlElement &element);
    void startInline(const XmlElement &element);
    void startBlock(const XmlElement &element);
    void endBlock(XmlTag tag);
    void startInProperties(const XmlElement &element);
    void startInTableProperties(const XmlElement &element);

    void beginStory();
    void beginNote(const XmlElement &element);
    void endStory();
    void startText();
    void endText();
    void append(QStringView text);
    void appendSymbol(const XmlElement &element);
    void appendBreak(const XmlElement &element);
    void handleFieldCharacter(const XmlElement &element);
    void insertChunk(const XmlElement &element);
    [[nodiscard]] StoryState &state() { return m_states.back(); }
    [[nodiscard]] const RunFormat &format();
    /// Whether text here is shown: not hidden, and not in a field instruction.
    [[nodiscard]] bool isShown();

    StoryNotes &m_notes;
    ReadChunk m_readChunk;
    StoryAssembler m_assembler;
    int m_depth = 0;
    int m_skippedDepth = 0; // of the outermost skipped element; 0 if there is none
    std::vector<Scope> m_scopes; // innermost last
    std::vector<SpaceScope> m_spaceScopes; // innermost last
    std::vector<StoryState> m_states; // innermost last
    FormulaParts m_formulaParts;
    QByteArray m_text; // of the open text element
    const NoteReferences *m_wantedNotes = nullptr;
    QByteArray m_note; // identifier of the open note
    QHash<QByteArray, AttributedString> m_noteTexts;
    std::optional<DocumentError::Cause> m_error;
};
