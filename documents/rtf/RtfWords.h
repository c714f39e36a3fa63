// SPDX-License-Identifier: MIT
// RtfWords lists the control words that mean something to the reader, and what. A word that is missing here
// is passed over, and a starred group that begins with one is skipped. Thread: any.
#pragma once

#include <QByteArrayView>
#include <QtGlobal>

/// What the text of a group is for.
enum class RtfDestination : quint8 {
    Text,
    Aside, ///< text that stands behind the body: a note, a text box
    Container, ///< holds no text but in destinations of its own
    Skipped, ///< with all that is inside
    FontTable,
    Alternatives, ///< \upr: the same in ANSI, skipped, and in Unicode, in a group \*\ud
    GraphicName, ///< the stored name of an attachment
    ExactValues, ///< the table of docs/rtf.md; the next is for the groups inside
    ExactValue,
};

/// What a word does. What the word's own argument is, stands behind it.
enum class RtfAction : quint8 {
    Nothing,
    // Characters
    Character, ///< the code unit
    Break, ///< likewise, in text only
    CellEnd, ///< likewise
    RowEnd,
    Unicode,
    FallbackLength,
    // Formulas
    FormulaRow, ///< of a matrix, or an equation array
    FormulaElement, ///< a cell where it is in a row
    FormulaPart, ///< of a fraction
    // Groups
    Destination, ///< an RtfDestination
    UnicodeAlternative,
    // The document
    CodePage, ///< the number of the page
    AnsiCodePage,
    DefaultFont,
    DefaultLanguage,
    DefaultTabInterval,
    // The font table
    FontCharset,
    FontCodePage,
    // Characters' looks
    Plain,
    Font,
    FontSize,
    FontSizeInThousandths,
    Bold,
    Italic,
    Hidden,
    Deleted,
    TrackingInQuarterPoints,
    TrackingInTwips,
    Raised,
    Lowered,
    Script, ///< 1 raised, -1 lowered, 0 neither
    Language, ///< 1 of a text whose spelling is not checked, 0 of any other
    ExactFont,
    ExactLanguage,
    ExactFile,
    // Paragraphs' looks
    PlainParagraph,
    Alignment, ///< a TextAlignment
    Direction, ///< a WritingDirection
    HeadIndent,
    FirstLineIndent,
    TailIndent,
    TabStop,
    TabAlignment, ///< a TabAlignment, of the next stop
    BarTab,
    TabInterval,
    LineSpacing,
    SpacingBefore,
    SpacingAfter,
    ExactParagraph,
};

struct RtfWord {
    const char *name;
    RtfAction action;
    qint32 argument = 0;
};

/// Null where the word is not listed. name: as in the document, without backslash and parameter.
const RtfWord *rtfWord(QByteArrayView name);
