// SPDX-License-Identifier: MIT
#include "platform/text_layout/PairRuns.h"

#include "platform/segmentation/PlainCharacters.h"

#include <algorithm>
#include <limits>

namespace {

constexpr size_t maxTables = 48; // of a third of a megabyte each
constexpr size_t maxKnownStyles = 4096;

// When all tables are in use, another one is made for a style only after this much text, for which the time
// to make it is short.
constexpr qsizetype minDemand = 8'192; // UTF-16 code units

} // namespace

PairRuns::PairRuns(FontLibrary &fonts, Shaper &shaper)
    : m_itemizer(fonts)
    , m_shaper(shaper)
    , m_isPlain([](char16_t unit) { return isPlainCharacter(unit) || isApart(unit); })
{
}

bool PairRuns::setParagraph(const AttributedString &text, const Paragraph &paragraph, bool isOneRun)
{
    m_runs.clear();
    m_content = paragraph.content(text.string());
    m_runsEnd = 0;
    m_isItemized = !isOneRun;
    if (isOneRun)
        return addOneRun(text, paragraph);
    if (!isPlain(m_content))
        return false;
    m_itemizer.setParagraph(text, paragraph);
    return addNextRun();
}

bool PairRuns::isPlain(QStringView content)
{
    return std::all_of(content.begin(), content.end(),
        [this](QChar character) { return m_isPlain.at(character.unicode()); });
}

bool PairRuns::addOneRun(const AttributedString &text, const Paragraph &paragraph)
{
    const AttributedString::Run attributesRun = text.run(text.runIndexAt(paragraph.start));
    const std::optional<quint32> script = findScript(m_content);
    if (attributesRun.start + attributesRun.length < paragraph.start + m_content.size() || !script)
        return false;
    const TextAttributes &attributes = text.distinctAttributes()[attributesRun.attributesIndex];
    if (!m_oneRun.pairs || m_script != *script || m_language != attributes.language
        || m_font != attributes.font) {
        m_font = attributes.font;
        m_language = attributes.language;
        m_script = *script;
        const TextStyle style = m_itemizer.resolve(attributes);
        const TextRun run{.start = 0,
            .end = m_content.size(),
            .kind = TextRun::Kind::Text,
            .isCut = false,
            .isRightToLeft = false,
            .script = *script,
            .face = style.fonts ? style.fonts->primary() : nullptr,
            .style = style};
        m_oneRun = makeRun(run, PairAdvances::Text::Pairs);
    }
    if (!m_oneRun.pairs)
        return false;
    m_oneRun.end = m_content.size();
    return true;
}

// The script of the first letter; characters that scripts share take it on.
std::optional<quint32> PairRuns::findScript(QStringView content) const
{
    for (const QChar character : content) {
        const char16_t unit = character.unicode();
        if (unit < 0x80) {
            const int lower = unit | 0x20;
            if (lower >= u'a' && lower <= u'z')
                return scriptOf(unit);
            continue;
        }
        if (isInvisibleControl(unit))
            continue;
        if (!isPlainCharacter(unit))
            return std::nullopt;
        const quint32 script = scriptOf(unit);
        if (script != sharedScript)
            return script;
    }
    return sharedScript;
}

const PairRun *PairRuns::runAt(qsizetype position)
{
    if (!m_isItemized)
        return &m_oneRun;
    while (m_runsEnd <= position) {
        if (!addNextRun())
            return nullptr;
    }
    const auto behind = std::upper_bound(m_runs.begin(), m_runs.end(), position,
        [](qsizetype wanted, const PairRun &run) { return wanted < run.start; });
    return behind != m_runs.begin() ? &*(behind - 1) : nullptr;
}

void PairRuns::discardBefore(qsizetype position)
{
    while (m_runs.size() > 1 && m_runs.front().end <= position)
        m_runs.pop_front();
}

// Tabs and controls count to the run before them, or after them at the paragraph's start: they are measured
// alone.
bool PairRuns::addNextRun()
{
    while (!m_itemizer.isAtEnd()) {
        const TextRun run = m_itemizer.next(std::numeric_limits<qsizetype>::max() / 2);
        const bool isApart = run.kind == TextRun::Kind::Tab || run.kind == TextRun::Kind::Invisible;
        if (isApart && !m_runs.empty()) {
            m_runs.back().end = run.end;
            m_runsEnd = run.end;
            return true;
        }
        if (isApart)
            continue;
        if (run.kind != TextRun::Kind::Text || run.isRightToLeft || !run.face)
            return false;
        PairRun added = makeRun(run, PairAdvances::Text::Pairs);
        const bool isAlone = run.end - run.start == 1;
        if (isAlone && !(added.pairs && added.pairs->supports(m_content.utf16()[run.start])))
            added = makeRun(run, PairAdvances::Text::LoneCharacters);
        if (!added.pairs)
            return false;
        added.start = m_runsEnd;
        added.end = run.end;
        m_runsEnd = run.end;
        m_runs.push_back(added);
        return true;
    }
    return false;
}

PairRun PairRuns::makeRun(const TextRun &run, PairAdvances::Text text)
{
    PairRun made;
    if (!run.face || run.style.tracking < 0)
        return made;
    const bool isPrimary = run.face == run.style.fonts->primary();
    made.pairs =
        tableFor({isPrimary ? run.style.fonts : nullptr, &m_shaper.styleOf(run), text}, run.end - run.start);
    made.pointsPerUnit = run.style.pointSize / run.face->unitsPerEm();
    made.unitsPerPoint = 1 / made.pointsPerUnit;
    made.tracking = run.style.tracking / made.pointsPerUnit;
    return made;
}

PairAdvances *PairRuns::tableFor(TableKey key, qsizetype length)
{
    if (m_tables.size() >= maxKnownStyles && !m_tables.contains(key))
        return nullptr;
    Table &table = m_tables[key];
    table.lastUse = ++m_uses;
    if (!table.pairs) {
        table.demand += length;
        if (m_tableCount >= maxTables) {
            const bool areAllInUse = !m_runs.empty(); // by the paragraph's other runs
            if (table.demand < minDemand || areAllInUse)
                return nullptr;
            discardLeastUsed();
        }
        table.pairs = std::make_unique<PairAdvances>(std::get<FontChain *>(key), m_shaper,
            *std::get<const ShapingStyle *>(key), std::get<PairAdvances::Text>(key));
        table.demand = 0;
        ++m_tableCount;
    }
    return table.pairs->isUsable() ? table.pairs.get() : nullptr;
}

void PairRuns::discardLeastUsed()
{
    const auto least =
        std::min_element(m_tables.begin(), m_tables.end(), [](const auto &left, const auto &right) {
            return std::pair(!left.second.pairs, left.second.lastUse)
                < std::pair(!right.second.pairs, right.second.lastUse);
        });
    least->second.pairs.reset();
    m_oneRun = {};
    --m_tableCount;
}
