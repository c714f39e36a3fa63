// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfWords.h"

#include "documents/Notes.h"
#include "platform/styled_text/TextAttributes.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace {

using enum RtfAction;

template <typename Value>
constexpr qint32 number(Value value)
{
    return static_cast<qint32>(value);
}

constexpr qint32 text = number(RtfDestination::Text);
constexpr qint32 aside = number(RtfDestination::Aside);
constexpr qint32 container = number(RtfDestination::Container);
constexpr qint32 skipped = number(RtfDestination::Skipped);

constexpr qint32 note = notesAreText ? aside : skipped;

/// Ascending by name.
constexpr RtfWord words[] = {
    {"NeXTGraphic", Destination, number(RtfDestination::GraphicName)},
    {"aftncn", Destination, skipped},
    {"aftnsep", Destination, skipped},
    {"aftnsepc", Destination, skipped},
    {"annotation", Destination, skipped},
    {"ansi", CodePage, 1252},
    {"ansicpg", AnsiCodePage},
    {"b", Bold},
    {"bkmkend", Destination, skipped},
    {"bkmkstart", Destination, skipped},
    {"bullet", Character, 0x2022},
    {"cell", CellEnd, 0x000A},
    {"colortbl", Destination, skipped},
    {"column", Break, 0x000C},
    {"cpg", FontCodePage},
    {"deff", DefaultFont},
    {"deflang", DefaultLanguage},
    {"deftab", DefaultTabInterval},
    {"deleted", Deleted},
    {"dn", Lowered},
    {"do", Destination, container},
    {"dptxbxtext", Destination, aside},
    {"emdash", Character, 0x2014},
    {"emspace", Character, 0x2003},
    {"endash", Character, 0x2013},
    {"enspace", Character, 0x2002},
    {"expnd", TrackingInQuarterPoints},
    {"expndtw", TrackingInTwips},
    {"f", Font},
    {"falt", Destination, skipped},
    {"fcharset", FontCharset},
    {"fi", FirstLineIndent},
    {"filetbl", Destination, skipped},
    {"fldinst", Destination, skipped},
    {"fldrslt", Destination, text},
    {"fonttbl", Destination, number(RtfDestination::FontTable)},
    {"footer", Destination, skipped},
    {"footerf", Destination, skipped},
    {"footerl", Destination, skipped},
    {"footerr", Destination, skipped},
    {"footnote", Destination, note},
    {"fs", FontSize},
    {"fsmilli", FontSizeInThousandths},
    {"ftncn", Destination, skipped},
    {"ftnsep", Destination, skipped},
    {"ftnsepc", Destination, skipped},
    {"generator", Destination, skipped},
    {"header", Destination, skipped},
    {"headerf", Destination, skipped},
    {"headerl", Destination, skipped},
    {"headerr", Destination, skipped},
    {"i", Italic},
    {"info", Destination, skipped},
    {"lang", Language},
    {"langnp", Language, 1},
    {"ldblquote", Character, 0x201C},
    {"li", HeadIndent},
    {"lin", HeadIndent},
    {"line", Break, 0x2028},
    {"listoverridetable", Destination, skipped},
    {"listtable", Destination, skipped},
    {"listtext", Destination, skipped},
    {"lquote", Character, 0x2018},
    {"ltrmark", Character, 0x200E},
    {"ltrpar", Direction, number(WritingDirection::LeftToRight)},
    {"mac", CodePage, 10000},
    {"maccPr", Destination, skipped},
    {"margPr", Destination, skipped},
    {"mbarPr", Destination, skipped},
    {"mborderBoxPr", Destination, skipped},
    {"mboxPr", Destination, skipped},
    {"mctrlPr", Destination, skipped},
    {"mdPr", Destination, skipped},
    {"mden", FormulaPart},
    {"me", FormulaElement},
    {"meqArr", FormulaRow},
    {"meqArrPr", Destination, skipped},
    {"mfPr", Destination, skipped},
    {"mfuncPr", Destination, skipped},
    {"mgroupChrPr", Destination, skipped},
    {"mlimLowPr", Destination, skipped},
    {"mlimUppPr", Destination, skipped},
    {"mmPr", Destination, skipped},
    {"mmath", Destination, text},
    {"mmathPict", Destination, skipped},
    {"mmathPr", Destination, skipped},
    {"mmcPr", Destination, skipped},
    {"mmr", FormulaRow},
    {"mnaryPr", Destination, skipped},
    {"mnum", FormulaPart},
    {"moMath", Destination, text},
    {"moMathPara", Destination, text},
    {"moMathParaPr", Destination, skipped},
    {"mphantPr", Destination, skipped},
    {"mrPr", Destination, skipped},
    {"mradPr", Destination, skipped},
    {"msPrePr", Destination, skipped},
    {"msSubPr", Destination, skipped},
    {"msSubSupPr", Destination, skipped},
    {"msSupPr", Destination, skipped},
    {"mvf", Deleted},
    {"nestcell", CellEnd, 0x000A},
    {"nestrow", RowEnd},
    {"nesttableprops", Destination, text},
    {"nonesttables", Destination, skipped},
    {"nonshppict", Destination, skipped},
    {"nosupersub", Script, 0},
    {"objclass", Destination, skipped},
    {"objdata", Destination, skipped},
    {"object", Destination, container},
    {"objname", Destination, skipped},
    {"page", Break, 0x000C},
    {"par", Break, 0x000A},
    {"pard", PlainParagraph},
    {"pardeftab", TabInterval},
    {"pardirnatural", Direction, number(WritingDirection::Natural)},
    {"pc", CodePage, 437},
    {"pca", CodePage, 850},
    {"pict", Destination, skipped},
    {"plain", Plain},
    {"pntext", Destination, skipped},
    {"qbyexact", Destination, number(RtfDestination::ExactValues)},
    {"qbyfile", ExactFile},
    {"qbyfont", ExactFont},
    {"qbylanguage", ExactLanguage},
    {"qbyparagraph", ExactParagraph},
    {"qc", Alignment, number(TextAlignment::Center)},
    {"qd", Alignment, number(TextAlignment::Justified)},
    {"qj", Alignment, number(TextAlignment::Justified)},
    {"qk", Alignment, number(TextAlignment::Justified)},
    {"ql", Alignment, number(TextAlignment::Left)},
    {"qmspace", Character, 0x2005},
    {"qnatural", Alignment, number(TextAlignment::Natural)},
    {"qr", Alignment, number(TextAlignment::Right)},
    {"qt", Alignment, number(TextAlignment::Justified)},
    {"rdblquote", Character, 0x201D},
    {"result", Destination, text},
    {"revtbl", Destination, skipped},
    {"ri", TailIndent},
    {"rin", TailIndent},
    {"row", RowEnd},
    {"rquote", Character, 0x2019},
    {"rtlmark", Character, 0x200F},
    {"rtlpar", Direction, number(WritingDirection::RightToLeft)},
    {"rxe", Destination, skipped},
    {"sa", SpacingAfter},
    {"sb", SpacingBefore},
    {"sect", Break, 0x000A},
    {"shp", Destination, container},
    {"shpgrp", Destination, container},
    {"shpinst", Destination, container},
    {"shppict", Destination, skipped},
    {"shprslt", Destination, skipped},
    {"shptxt", Destination, aside},
    {"slleading", LineSpacing},
    {"sp", Destination, skipped},
    {"stylesheet", Destination, skipped},
    {"sub", Script, -1},
    {"super", Script, 1},
    {"tab", Character, 0x0009},
    {"tb", BarTab},
    {"tc", Destination, skipped},
    {"tcn", Destination, skipped},
    {"template", Destination, skipped},
    {"tqc", RtfAction::TabAlignment, number(::TabAlignment::Center)},
    {"tqdec", RtfAction::TabAlignment, number(::TabAlignment::Decimal)},
    {"tqr", RtfAction::TabAlignment, number(::TabAlignment::Right)},
    {"tx", RtfAction::TabStop},
    {"txe", Destination, skipped},
    {"u", Unicode},
    {"uc", FallbackLength},
    {"ud", UnicodeAlternative},
    {"up", Raised},
    {"upr", Destination, number(RtfDestination::Alternatives)},
    {"v", Hidden},
    {"xe", Destination, skipped},
    {"zwbo", Character, 0x200B},
    {"zwj", Character, 0x200D},
    {"zwnbo", Character, 0x2060},
    {"zwnj", Character, 0x200C},
};

/// A hash table with open addressing, because a document may contain half a million words.
constexpr size_t slotCount = 512;
constexpr quint8 noWord = UINT8_MAX;
static_assert(std::size(words) < noWord && std::size(words) * 2 < slotCount);

constexpr size_t slotOf(std::string_view name)
{
    quint32 hash = 2'166'136'261; // FNV-1a
    for (const char letter : name)
        hash = (hash ^ static_cast<uchar>(letter)) * 16'777'619;
    return (hash ^ (hash >> 16)) % slotCount;
}

constexpr std::array<quint8, slotCount> fillSlots()
{
    std::array<quint8, slotCount> slots{};
    slots.fill(noWord);
    for (size_t i = 0; i < std::size(words); ++i) {
        size_t slot = slotOf(words[i].name);
        while (slots.at(slot) != noWord)
            slot = (slot + 1) % slotCount;
        slots.at(slot) = static_cast<quint8>(i);
    }
    return slots;
}

constexpr std::array<quint8, slotCount> slots = fillSlots();

/// Longer names are not worth hashing.
constexpr qsizetype maxWordLength = 17;
static_assert(std::ranges::all_of(
    words, [](std::string_view name) { return name.size() <= maxWordLength; }, &RtfWord::name));

} // namespace

const RtfWord *rtfWord(QByteArrayView name)
{
    if (name.size() > maxWordLength)
        return nullptr;
    const std::string_view wanted(name.data(), static_cast<size_t>(name.size()));
    for (size_t slot = slotOf(wanted); slots.at(slot) != noWord; slot = (slot + 1) % slotCount) {
        const RtfWord &word = words[slots.at(slot)];
        if (wanted == word.name)
            return &word;
    }
    return nullptr;
}
