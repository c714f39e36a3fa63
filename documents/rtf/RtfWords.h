// SPDX-License-Identifier: MIT
// RtfWords lists the control words that the reader understands, and their actions. Any other word is ignored,
// and a group that begins with \* and such a word is skipped. Performing the actions is left to
// RtfInterpreter.
// Thread: any; constants.
#pragma once

#include <QByteArrayView>
#include <QtGlobal>

/// The purpose of the text in a group.
enum class RtfDestination : quint8 {
    Text,
    Aside, ///< text that follows the body: a note, a text box
    Container, ///< contains text only in destinations inside of it
    Skipped, ///< including all groups inside
    FontTable,
    Alternatives, ///< \upr: the text in ANSI, which is skipped, and in Unicode, in a group \*\ud
    GraphicName, ///< the file name of an attachment
    ExactValues, ///< the table of docs/rtf.md
    ExactValue, ///< a group of that table
};

/// What a word does. The comments describe its argument.
enum class RtfAction : quint8 {
    Nothing,
    // Characters
    Character, ///< the code unit
    Break, ///< the code unit; ignored outside of text
    CellEnd, ///< the code unit; counts in hidden text too
    RowEnd,
    Unicode,
    FallbackLength,
    // Formulas
    FormulaRow, // of a matrix or an equation array
    FormulaElement, // a cell if it is in a row
    FormulaPart, // of a fraction
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
    // Character formats
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
    Language, ///< 1 for text whose spelling is not checked, else 0
    ExactFont,
    ExactLanguage,
    ExactFile,
    // Paragraph formats
    PlainParagraph,
    Alignment, ///< a TextAlignment
    Direction, ///< a WritingDirection
    HeadIndent,
    FirstLineIndent,
    TailIndent,
    TabStop,
    TabAlignment, ///< a TabAlignment, for the next stop
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

/// Null if the word is not listed. name: as in the document, without backslash and parameter.
const RtfWord *rtfWord(QByteArrayView name);
