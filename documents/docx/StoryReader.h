// SPDX-License-Identifier: MIT
// StoryReader turns the elements of a part with text (the main part, footnotes, endnotes) into styled text:
// it knows what of them is text, and StoryAssembler makes paragraphs of it.
// Thread: one at a time.  Owner: DocxReader.
#pragma once

#include "documents/docx/FormulaParts.h"
#include "documents/docx/StoryAssembler.h"
#include "documents/docx/XmlReader.h"

#include <QByteArray>
#include <QHash>

#include <functional>
#include <optional>
#include <vector>

/// The notes that a story refers to, each once, in order.
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

class StoryReader final : public XmlHandler {
public:
    /// The text of a chunk in another format, by the identifier of its relationship.
    using ReadChunk =
        std::function<Result<AttributedString, DocumentError::Cause>(const QByteArray &identifier)>;

    /// notes: is told of the references in the text.
    StoryReader(const DocumentStyles &styles, StoryNotes &notes, ReadChunk readChunk);

    void startElement(const XmlElement &element) override;
    void endElement(XmlName name) override;
    void characters(QByteArrayView text) override;

    /// The body of the main part.
    [[nodiscard]] AttributedString takeBody() { return m_assembler.takeText(); }
    /// Of a part with notes: those that the references given before contain.
    void wantNotes(const NoteReferences *wanted) { m_wantedNotes = wanted; }
    [[nodiscard]] AttributedString note(const QByteArray &identifier) const
    {
        return m_noteTexts.value(identifier);
    }
    /// What went wrong with a chunk.
    [[nodiscard]] std::optional<DocumentError::Cause> error() const { return m_error; }

private:
    enum class Mode { Content, Text, ParagraphProperties, MarkProperties, RunProperties, Table, Row, Cell };
    struct Scope {
        int depth;
        Mode mode;
    };
    /// xml:space of an element, which holds for all that is in it.
    struct SpaceScope {
        int depth;
        bool isKept;
    };
    struct Run {
        RunProperties direct;
        std::optional<RunFormat> format; // once its properties are known
    };
    /// What a story within another one must not disturb.
    struct StoryState {
        int depth; // of the element that the story is
        Run run;
        std::vector<bool> fields; // of the open ones, whether the result has begun
        int fieldsWithoutResult = 0;
        bool keepsSpace = false;
    };

    [[nodiscard]] Mode mode() const { return m_scopes.empty() ? Mode::Content : m_scopes.back().mode; }
    void enter(Mode mode) { m_scopes.push_back({m_depth, mode}); }
    void leaveOut() { m_leftOutDepth = m_depth; }

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
    void takeField(const XmlElement &element);
    void insertChunk(const XmlElement &element);
    [[nodiscard]] StoryState &state() { return m_states.back(); }
    [[nodiscard]] const RunFormat &format();
    /// Whether text at this place shows: not hidden, and not the instruction of a field.
    [[nodiscard]] bool shows();

    StoryNotes &m_notes;
    ReadChunk m_readChunk;
    StoryAssembler m_assembler;
    int m_depth = 0;
    int m_leftOutDepth = 0; // of the outermost element that is left out; 0: none
    std::vector<Scope> m_scopes; // innermost last
    std::vector<SpaceScope> m_spaceScopes; // innermost last
    std::vector<StoryState> m_states; // innermost last
    FormulaParts m_formulaParts;
    QByteArray m_text; // of the text element that is open
    const NoteReferences *m_wantedNotes = nullptr;
    QByteArray m_note; // the one that is open
    QHash<QByteArray, AttributedString> m_noteTexts;
    std::optional<DocumentError::Cause> m_error;
};
