// SPDX-License-Identifier: MIT
// RtfInterpreter makes a text of the tokens of an RTF document: it keeps the state of each group and knows
// what its destination does with text. What words do to looks is RtfFormat's business, what a document says
// of its fonts RtfFontTable's. Thread: one.  Owner: the reading of one document.
#pragma once

#include "documents/rtf/RtfDecoder.h"
#include "documents/rtf/RtfExactValues.h"
#include "documents/rtf/RtfFlow.h"
#include "documents/rtf/RtfGraphics.h"
#include "documents/rtf/RtfTokenizer.h"
#include "documents/rtf/RtfWords.h"

#include <QHash>
#include <QString>

#include <vector>

class RtfInterpreter {
public:
    explicit RtfInterpreter(const AttachmentSource &attachments)
        : m_graphics(attachments, m_exactValues)
    {
    }

    /// Takes all tokens up to the end of the document's group.
    AttributedString textOf(RtfTokenizer tokens);

private:
    /// What a group has of its own and hands on to the groups inside.
    struct State {
        RtfFormat format;
        RtfDestination destination = RtfDestination::Text;
        RtfDestination alternativeTo = RtfDestination::Text; ///< the destination around \upr
        bool isAside = false;
        bool beginsAside = false;
        bool isFormulaRow = false; ///< of a matrix or an equation array; of this very group
        bool isInFormulaRow = false; ///< right inside of such a group
        bool isFormulaPart = false; ///< stands apart; of this very group
        qint32 fallbackLength = 1; ///< \uc
        qint32 graphic = RtfGraphics::none; ///< whose marker is to come, in this very group
        qint32 fileNumber = 0; ///< \qbyfile
        RtfAction exactKind = RtfAction::Nothing; ///< of an exact value
        qint32 exactNumber = 0;
    };

    void take(const RtfToken &token);
    void beginGroup();
    void endGroup();
    void leaveDestination(const State &left);

    void takeText(QByteArrayView bytes);
    void takeByte(uchar byte);
    void takeSymbol(uchar symbol);
    void takeWord(const RtfToken &token, bool isStarred);

    void appendBytes(QByteArrayView bytes);
    void appendCharacters(QStringView characters);
    void appendUnicode(qint32 number);
    void appendMarker();
    void finishBytes();
    /// Where text goes; null where nowhere.
    [[nodiscard]] QString *target();
    [[nodiscard]] bool isText() const;
    [[nodiscard]] const RtfCodePage *page();
    [[nodiscard]] size_t depth() const { return m_outer.size(); }

    void act(const RtfWord &word, std::optional<qint32> parameter);
    void actOnText(const RtfWord &word, std::optional<qint32> parameter);
    void actOnFormula(const RtfWord &word);
    void actOnDocument(const RtfWord &word, std::optional<qint32> parameter);
    void actOnLooks(const RtfWord &word, std::optional<qint32> parameter);
    void chooseExactly(RtfAction kind, qint32 number);
    void enter(RtfDestination destination);

    RtfFlow &flow() { return m_state.isAside ? m_asides : m_body; }
    [[nodiscard]] QString languageOf(qint32 lcid);

    RtfDecoder m_decoder;
    RtfFontTable m_fonts;
    RtfExactValues m_exactValues;
    RtfGraphics m_graphics;
    RtfAttributes m_attributes{m_fonts};
    RtfFlow m_body{m_attributes};
    RtfFlow m_asides{m_attributes};

    State m_state;
    std::vector<State> m_outer; ///< of the groups around
    qsizetype m_deeperGroups = 0; ///< that are too deep for a state of their own

    const RtfCodePage *m_documentPage = defaultRtfCodePage();
    RtfCharacterFormat m_plain;
    QSharedDataPointer<RtfParagraphFormat> m_plainParagraph{new RtfParagraphFormat};
    QHash<qint32, QString> m_languages; ///< by number

    QString m_name; ///< of the graphic, or the exact value, that is being read
    bool m_isNameComplete = false; ///< of the graphic
    qsizetype m_fallback = 0; ///< characters to skip behind \u
    bool m_isAtGroupStart = false; ///< right behind a brace
    bool m_isStarred = false; ///< right behind \* at a group's start

    // The page of a font, kept until another one is asked for.
    qint32 m_fontOfPage = RtfCharacterFormat::noFont;
    quint32 m_versionOfPage = 0;
    const RtfCodePage *m_fontPage = nullptr;
};
