// SPDX-License-Identifier: MIT
#include "platform/text_layout/PairAdvances.h"

#include "platform/segmentation/LineBreaks.h"
#include "platform/segmentation/PlainCharacters.h"
#include "platform/segmentation/ScriptRuns.h"

#include <hb.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr size_t classCount = 256;
constexpr quint8 unknownClass = 0;
constexpr quint8 controlClass = 1; // of the control characters without an advance
constexpr quint8 unsupportedClass = 0x7F; // no text has a printable character there

// Blocks of letters and punctuation whose rules are read. Other characters are only supported if no rule
// names them.
struct Block {
    char16_t first;
    char16_t last;
};
constexpr Block blocks[]{{0x0020, 0x024F}, {0x0370, 0x058F}, {0x10A0, 0x10FF}, {0x1E00, 0x20CF},
    {0x3000, 0x312F}, {0xFF00, 0xFFFD}};

constexpr int firstFreeClass = 0x80;
constexpr int lastClass = 0xFF;

} // namespace

PairAdvances::PairAdvances(FontChain *fonts, Shaper &shaper, const ShapingStyle &style, Text text)
    : m_fonts(fonts)
    , m_shaper(shaper)
    , m_style(style)
    , m_isOfLoneCharacters(text == Text::LoneCharacters)
    , m_covered(makeGlyphSet())
    , m_nextClass(firstFreeClass)
{
    if (m_isOfLoneCharacters)
        m_rules.areSimple = true;
    else
        readRules();
    if (!m_rules.areSimple)
        return;
    m_classes.resize(size_t{1} << 16);
    m_advances.resize(classCount * classCount, unknown);
    m_isUnsafe.resize(classCount * classCount);
    addControls();
    for (size_t other = 0; other < classCount; ++other) {
        const auto own = static_cast<quint8>(other);
        at(endClass, own) = unsupported;
        at(forcedBreakClass, own) = unsupported;
        at(controlClass, own) = 0;
    }
    for (size_t other = 0; other < classCount; ++other) {
        const auto own = static_cast<quint8>(other);
        at(unsupportedClass, own) = unsupported;
        at(own, unsupportedClass) = unsupported;
    }
}

void PairAdvances::readRules()
{
    if (!m_style.isOfOpenTypeRules())
        return;
    collectGlyphs(m_covered.get());
    m_rules = m_style.rulesFor(m_covered.get());
    m_named = m_style.namedGlyphs();
    m_hasKerningTable = m_style.mayHaveKerningTable();
}

bool PairAdvances::isSupported(quint8 ownClass)
{
    return ownClass != unsupportedClass;
}

// Control characters are invisible, and not shaped with the text around them.
void PairAdvances::addControls()
{
    // Tracking adds to every advance but theirs.
    const quint8 ownClass = m_style.mayHaveLigatures() ? controlClass : unsupportedClass;
    for (char16_t unit = 0; unit < 0xA0; ++unit) {
        if (isInvisibleControl(unit))
            m_classes[unit] = ownClass;
    }
    for (const char16_t unit : {u'\v', u'\f', u'\u0085', u'\u2028'})
        m_classes[unit] = isForcedLineBreak(unit) ? forcedBreakClass : unsupportedClass;
    m_classes[endClass] = endClass;
}

bool PairAdvances::isCandidate(char16_t unit) const
{
    if (!isPlainCharacter(unit))
        return false;
    const quint32 script = scriptOf(unit);
    return script == sharedScript || script == m_style.script();
}

// Characters that no font has are shown as the first font's glyph 0. This does not hold for those that
// consist of others.
bool PairAdvances::glyphOf(char16_t unit, quint32 &glyph) const
{
    glyph = 0;
    return m_style.glyphOf(unit, glyph) || (m_fonts && isWithoutMeaning(unit));
}

void PairAdvances::collectGlyphs(hb_set_t *glyphs) const
{
    hb_set_add(glyphs, 0);
    for (const Block &block : blocks) {
        for (char16_t unit = block.first; unit <= block.last; ++unit) {
            hb_codepoint_t glyph = 0;
            if (m_style.glyphOf(unit, glyph) && isCandidate(unit))
                hb_set_add(glyphs, glyph);
        }
    }
}

quint8 PairAdvances::classify(char16_t unit)
{
    quint8 &known = m_classes[unit];
    if (known == unknownClass)
        known = findClass(unit);
    return known;
}

quint8 PairAdvances::findClass(char16_t unit)
{
    hb_codepoint_t glyph = 0;
    if (!isCandidate(unit) || !glyphOf(unit, glyph) || hb_set_has(m_rules.changed.get(), glyph)
        || (m_fonts && m_fonts->faceFor(QStringView(&unit, 1), nullptr) != &m_style.face()))
        return unsupportedClass;
    if (m_isOfLoneCharacters)
        return classOfAdvance(unit);
    if (glyph == 0) {
        if (m_absentClass == unknownClass)
            m_absentClass = addClass(unit);
        return m_absentClass;
    }
    if (m_hasKerningTable || hb_set_has(m_named.get(), glyph))
        return hb_set_has(m_covered.get(), glyph) ? addClass(unit) : unsupportedClass;
    // No pair begins with it, and as second of a pair all such glyphs are equal.
    return classOfAdvance(unit);
}

quint8 PairAdvances::classOfAdvance(char16_t unit)
{
    float advance = 0;
    quint8 flags = 0;
    m_shaper.shape(m_style, QStringView(&unit, 1), 0, 1, &advance, &flags);
    const int own = static_cast<int>(advance);
    const auto known = std::find_if(
        m_inert.begin(), m_inert.end(), [own](const Inert &inert) { return inert.advance == own; });
    if (known != m_inert.end())
        return known->ownClass;
    const quint8 added = addClass(unit);
    if (added != unsupportedClass)
        m_inert.push_back({own, added});
    return added;
}

quint8 PairAdvances::addClass(char16_t unit)
{
    if (unit < 0x80)
        return static_cast<quint8>(unit);
    return m_nextClass > lastClass ? unsupportedClass : static_cast<quint8>(m_nextClass++);
}

void PairAdvances::measure(char16_t first, char16_t second)
{
    const quint8 firstClass = classify(first);
    const quint8 secondClass = classify(second);
    int &advance = at(firstClass, secondClass);
    if (advance != unknown)
        return;
    bool isUnsafe = false;
    advance = advanceOfPair(first, second, isUnsafe);
    m_isUnsafe[indexOf(firstClass, secondClass)] = isUnsafe;
}

int PairAdvances::advanceOfPair(char16_t first, char16_t second, bool &isUnsafe)
{
    const std::array<char16_t, 2> text{first, second};
    std::array<float, 2> advances{};
    std::array<quint8, 2> flags{};
    const auto shape = [&](qsizetype start, qsizetype end) {
        m_shaper.shape(m_style, QStringView(text.data() + start, end - start), 0, end - start,
            advances.data(), flags.data());
    };
    constexpr int maxAdvance = limit / 64;
    const auto supported = [](float advance) {
        const bool isUsable = advance >= 0 && advance < maxAdvance && advance == std::floor(advance);
        return isUsable ? static_cast<int>(advance) : unsupported;
    };
    if (isApart(second)) {
        shape(0, 1);
        return supported(advances[0]);
    }
    if (m_isOfLoneCharacters)
        return unsupported;
    hb_codepoint_t firstGlyph = 0;
    hb_codepoint_t secondGlyph = 0;
    if (!glyphOf(first, firstGlyph) || !glyphOf(second, secondGlyph))
        return unsupported;
    if (m_rules.mayJoin(firstGlyph, secondGlyph))
        return joined;
    shape(1, 2);
    const float secondAlone = advances[0];
    shape(0, 2);
    // Tables of kerning without OpenType rules change both advances.
    if (advances[1] != secondAlone || !(flags[1] & StartsCluster))
        return unsupported;
    isUnsafe = (flags[1] & UnsafeToBreak) != 0;
    return supported(advances[0]);
}
