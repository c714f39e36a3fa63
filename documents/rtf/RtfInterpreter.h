// SPDX-License-Identifier: MIT
// RtfInterpreter turns the tokens of an RTF document into text: it keeps the state of each group and decides
// what happens to the text in each destination. Formats are left to RtfFormat, fonts to RtfFontTable.
// Thread: one.  Owner: readRtf().
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

    /// Reads all tokens up to the end of the group of the document.
    AttributedString readText(RtfTokenizer tokens);

private:
    /// The state of a group. Groups inside start with a copy.
    struct State {
        RtfFormat format;
        RtfDestination destination = RtfDestination::Text;
        RtfDestination alternativeTo = RtfDestination::Text; ///< the destination around \upr
        bool isAside = false; ///< in a note or a text box
        bool beginsAside = false;
        bool isFormulaRow = false; ///< of a matrix or an equation array; not inherited
        bool isInFormulaRow = false; ///< directly inside of such a group
        bool isFormulaPart = false; ///< needs a space around it; not inherited
        qint32 fallbackLength = 1; ///< \uc
        qint32 graphic = RtfGraphics::none; ///< whose marker has not come yet; not inherited
        qint32 fileNumber = 0; ///< \qbyfile
        RtfAction exactKind = RtfAction::Nothing; ///< of the exact value being read
        qint32 exactNumber = 0;
    };

    void handle(const RtfToken &token);
    /// Behind a text, which ends the special meaning of what comes at the start of a group.
    void readPlainRun(RtfTokenizer &tokens);
    void beginGroup();
    void endGroup();
    void leaveDestination(const State &left);

    void handleText(QByteArrayView bytes);
    void handleByte(uchar byte);
    void handleSymbol(uchar symbol);
    void handleWord(const RtfToken &token, bool isStarred);

    void appendBytes(QByteArrayView bytes);
    void appendCharacters(QStringView characters);
    void appendUnicode(qint32 number);
    void appendMarker();
    void finishBytes();
    /// The buffer that text is appended to; null if text is dropped.
    [[nodiscard]] QString *target();
    [[nodiscard]] bool isText() const;
    [[nodiscard]] const RtfCodePage *page();
    [[nodiscard]] size_t depth() const { return m_outer.size(); }

    void performAction(const RtfWord &word, std::optional<qint32> parameter);
    void performTextAction(const RtfWord &word, std::optional<qint32> parameter);
    void performFormulaAction(const RtfWord &word);
    void performDocumentAction(const RtfWord &word, std::optional<qint32> parameter);
    void performFormatAction(const RtfWord &word, std::optional<qint32> parameter);
    void applyExactValue(RtfAction kind, qint32 number);
    void enterDestination(RtfDestination destination);

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
    std::vector<State> m_outer; ///< of the surrounding groups
    qsizetype m_deeperGroups = 0; ///< open groups beyond the maximum depth

    const RtfCodePage *m_documentPage = defaultRtfCodePage();
    RtfCharacterFormat m_plain;
    QSharedDataPointer<RtfParagraphFormat> m_plainParagraph{new RtfParagraphFormat};
    QHash<qint32, QString> m_languages; ///< by number

    QString m_name; ///< of the graphic, or of the exact value, that is being read
    bool m_isNameComplete = false; ///< of the graphic
    qsizetype m_fallback = 0; ///< characters left to skip after \u
    bool m_isAtGroupStart = false; ///< directly after an opening brace
    bool m_isStarred = false; ///< directly after \* at the start of a group

    // A cache for page().
    qint32 m_fontOfPage = RtfCharacterFormat::noFont;
    quint32 m_versionOfPage = 0;
    const RtfCodePage *m_fontPage = nullptr;
};
