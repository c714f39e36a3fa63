// SPDX-License-Identifier: MIT
#include "platform/text_layout/FontRules.h"

#include "platform/text_layout/LayoutTable.h"

#include <hb-ot.h>
#include <hb.h>

#include <algorithm>
#include <map>
#include <set>

namespace {

constexpr size_t maxLigaturePairs = 20'000;

// The lookups that a plan applies to every glyph: all but those for fractions.
GlyphSet lookupsOf(hb_face_t *face, hb_shape_plan_t *plan, hb_tag_t table)
{
    GlyphSet lookups = makeGlyphSet();
    hb_ot_shape_plan_collect_lookups(plan, table, lookups.get());
    unsigned count = hb_ot_layout_table_get_feature_tags(face, table, 0, nullptr, nullptr);
    std::vector<hb_tag_t> features(count);
    hb_ot_layout_table_get_feature_tags(face, table, 0, &count, features.data());
    std::erase_if(features, [](hb_tag_t feature) {
        return feature == HB_TAG('f', 'r', 'a', 'c') || feature == HB_TAG('n', 'u', 'm', 'r')
            || feature == HB_TAG('d', 'n', 'o', 'm');
    });
    features.push_back(HB_TAG_NONE);
    const GlyphSet others = makeGlyphSet();
    hb_ot_layout_collect_lookups(face, table, nullptr, nullptr, features.data(), others.get());
    hb_set_intersect(lookups.get(), others.get());
    return lookups;
}

template <typename Visit>
void forEach(const hb_set_t *set, Visit &&visit)
{
    hb_codepoint_t item = HB_SET_VALUE_INVALID;
    while (hb_set_next(set, &item))
        visit(item);
}

class RuleReader {
public:
    RuleReader(hb_face_t *face, hb_shape_plan_t *plan, const hb_set_t *glyphs)
        : m_face(face)
        , m_plan(plan)
    {
        hb_set_union(m_glyphs.get(), glyphs);
        hb_set_union(m_original.get(), glyphs);
    }

    FontRules read()
    {
        excludeMarks();
        readSubstitutions();
        readPositioning();
        FontRules rules;
        rules.areSimple = m_areSimple && m_ligatures.size() <= maxLigaturePairs;
        rules.changed = std::move(m_changed);
        rules.ligatures.assign(m_ligatures.begin(), m_ligatures.end());
        return rules;
    }

private:
    // The characters at either end of a glyph that may be a ligature, as their own glyphs.
    struct Ends {
        std::set<quint32> first;
        std::set<quint32> last;
    };

    void exclude(quint32 glyph)
    {
        if (hb_set_has(m_original.get(), glyph))
            hb_set_add(m_changed.get(), glyph);
        if (m_ligatureEnds.contains(glyph))
            m_areSimple = false;
    }

    void excludeCovered(LayoutTable &table, size_t coverage)
    {
        table.forEachCovered(coverage, m_glyphs.get(), [&](quint32 glyph, size_t) { exclude(glyph); });
    }

    // Other rules look past marks.
    void excludeMarks()
    {
        forEach(m_glyphs.get(), [&](quint32 glyph) {
            if (isMark(glyph))
                exclude(glyph);
        });
    }

    [[nodiscard]] bool isMark(quint32 glyph) const
    {
        return hb_ot_layout_has_glyph_classes(m_face)
            && hb_ot_layout_get_glyph_class(m_face, glyph) == HB_OT_LAYOUT_GLYPH_CLASS_MARK;
    }

    [[nodiscard]] Ends endsOf(quint32 glyph) const
    {
        const auto found = m_ligatureEnds.find(glyph);
        Ends ends = found != m_ligatureEnds.end() ? found->second : Ends{};
        if (hb_set_has(m_original.get(), glyph)) {
            ends.first.insert(glyph);
            ends.last.insert(glyph);
        }
        return ends;
    }

    void readSubstitutions()
    {
        LayoutTable table(m_face, HB_OT_TAG_GSUB);
        const GlyphSet lookups = lookupsOf(m_face, m_plan, HB_OT_TAG_GSUB);
        // A ligature may become part of another one.
        constexpr int maxRounds = 8;
        size_t before = 0;
        for (int round = 0; round < maxRounds && m_areSimple; ++round) {
            forEach(lookups.get(), [&](quint32 index) { readSubstitution(table, table.lookup(index)); });
            if (m_work == before)
                break;
            before = m_work;
            m_areSimple = m_areSimple && round + 1 < maxRounds;
        }
        m_areSimple = m_areSimple && (!table.hasFailed() || hb_set_is_empty(lookups.get()));
    }

    void readSubstitution(LayoutTable &table, const LayoutTable::Lookup &lookup)
    {
        for (const size_t subtable : lookup.subtables) {
            if (lookup.type == LayoutTable::LigatureSubstitution)
                readLigatures(table, subtable, lookup.flags);
            else if (lookup.type == LayoutTable::ContextSubstitution
                || lookup.type == LayoutTable::ChainSubstitution)
                readContext(table, subtable, lookup.type == LayoutTable::ChainSubstitution);
            else
                excludeCovered(table, table.target(subtable, subtable + 2));
        }
    }

    void readLigatures(LayoutTable &table, size_t subtable, int flags)
    {
        const size_t coverage = table.target(subtable, subtable + 2);
        std::vector<std::pair<quint32, size_t>> sets;
        table.forEachCovered(coverage, m_glyphs.get(), [&](quint32 first, size_t index) {
            sets.emplace_back(first, table.target(subtable, subtable + 6 + 2 * index));
        });
        for (const auto &[first, set] : sets) {
            const size_t count = table.value(set);
            for (size_t i = 0; i < count && !table.hasFailed(); ++i)
                readLigature(table, first, table.target(set, set + 2 + 2 * i), flags);
        }
    }

    void readLigature(LayoutTable &table, quint32 first, size_t ligature, int flags)
    {
        const quint32 result = table.value(ligature);
        const size_t count = table.value(ligature + 2);
        std::vector<quint32> components{first};
        for (size_t i = 1; i < count && !table.hasFailed(); ++i) {
            components.push_back(table.value(ligature + 2 + 2 * i));
            if (!hb_set_has(m_glyphs.get(), components.back()))
                return; // never occurs
        }
        if (components.size() < 2)
            return exclude(first);
        if (flags & (LayoutTable::ignoresBases | LayoutTable::ignoresLigatures)) {
            m_areSimple = false;
            return;
        }
        for (size_t i = 1; i < components.size(); ++i) {
            for (const quint32 last : endsOf(components[i - 1]).last) {
                for (const quint32 next : endsOf(components[i]).first)
                    m_work += m_ligatures.emplace(last, next).second;
            }
        }
        if (m_ligatures.size() > maxLigaturePairs)
            m_areSimple = false;
        addResult(result, endsOf(components.front()).first, endsOf(components.back()).last);
    }

    void addResult(quint32 result, const std::set<quint32> &first, const std::set<quint32> &last)
    {
        Ends &ends = m_ligatureEnds[result];
        const size_t before = ends.first.size() + ends.last.size();
        ends.first.insert(first.begin(), first.end());
        ends.last.insert(last.begin(), last.end());
        m_work += ends.first.size() + ends.last.size() - before;
        hb_set_add(m_glyphs.get(), result);
        if (hb_set_has(m_changed.get(), result) || isMark(result))
            m_areSimple = false;
    }

    // Excludes the glyphs at which a contextual rule may apply: those without which it never does.
    void readContext(LayoutTable &table, size_t subtable, bool isChain)
    {
        const quint16 format = table.value(subtable);
        if (format == 3)
            readCoverageContext(table, subtable, isChain);
        else if (format == 2 && isChain)
            readClassChain(table, subtable);
        else
            excludeCovered(table, table.target(subtable, subtable + 2));
    }

    void readCoverageContext(LayoutTable &table, size_t subtable, bool isChain)
    {
        size_t at = subtable + 2;
        bool mayApply = true;
        size_t input = 0;
        for (int part = isChain ? 0 : 1; part <= (isChain ? 2 : 1); ++part) {
            const size_t count = table.value(at);
            at += isChain ? 2 : 4; // the number of actions comes between in the simple form
            for (size_t i = 0; i < count && !table.hasFailed(); ++i, at += 2) {
                const size_t coverage = table.target(subtable, at);
                if (part == 1 && i == 0)
                    input = coverage;
                mayApply = mayApply && table.coversAny(coverage, m_glyphs.get());
            }
        }
        if (mayApply && input != 0)
            excludeCovered(table, input);
    }

    void readClassChain(LayoutTable &table, size_t subtable)
    {
        std::vector<bool> classes[3]; // before, input, after
        for (size_t part = 0; part < 3; ++part)
            classes[part] = table.classesOf(table.target(subtable, subtable + 4 + 2 * part), m_glyphs.get());
        const size_t setCount = table.value(subtable + 10);
        std::vector<bool> mayStart(setCount);
        for (size_t own = 0; own < setCount && !table.hasFailed(); ++own) {
            const size_t offset = table.value(subtable + 12 + 2 * own);
            const size_t set = subtable + offset;
            const size_t count = offset ? table.value(set) : 0;
            for (size_t i = 0; i < count && !mayStart[own] && !table.hasFailed(); ++i)
                mayStart[own] = mayRuleApply(table, table.target(set, set + 2 + 2 * i), classes);
        }
        const size_t inputClasses = table.target(subtable, subtable + 6);
        table.forEachCovered(
            table.target(subtable, subtable + 2), m_glyphs.get(), [&](quint32 glyph, size_t) {
                const auto own = static_cast<size_t>(table.classOf(inputClasses, glyph));
                if (own < setCount && mayStart[own])
                    exclude(glyph);
            });
    }

    static bool mayRuleApply(LayoutTable &table, size_t rule, const std::vector<bool> (&classes)[3])
    {
        size_t at = rule;
        bool mayApply = true;
        for (size_t part = 0; part < 3; ++part) {
            size_t count = table.value(at);
            at += 2;
            if (part == 1 && count > 0)
                --count; // without the first glyph
            for (size_t i = 0; i < count && !table.hasFailed(); ++i, at += 2)
                mayApply = mayApply && classes[part][table.value(at)];
        }
        return mayApply;
    }

    void readPositioning()
    {
        LayoutTable table(m_face, HB_OT_TAG_GPOS);
        const GlyphSet lookups = lookupsOf(m_face, m_plan, HB_OT_TAG_GPOS);
        forEach(lookups.get(), [&](quint32 index) {
            const LayoutTable::Lookup lookup = table.lookup(index);
            for (const size_t subtable : lookup.subtables)
                readPositioning(table, lookup, subtable);
        });
        m_areSimple = m_areSimple && (!table.hasFailed() || hb_set_is_empty(lookups.get()));
    }

    void readPositioning(LayoutTable &table, const LayoutTable::Lookup &lookup, size_t subtable)
    {
        if (lookup.type == LayoutTable::SinglePositioning
            || (lookup.type >= LayoutTable::MarkToBase && lookup.type <= LayoutTable::MarkToMark))
            return; // depends on the glyph alone, or moves marks, which have no advance
        if (lookup.type == LayoutTable::ContextPositioning || lookup.type == LayoutTable::ChainPositioning)
            return readContext(table, subtable, lookup.type == LayoutTable::ChainPositioning);
        const size_t coverage = table.target(subtable, subtable + 2);
        if (lookup.type != LayoutTable::PairPositioning)
            return excludeCovered(table, coverage);
        const bool affectsSecond = table.value(subtable + 6) != 0;
        if ((affectsSecond || lookup.flags & (LayoutTable::ignoresBases | LayoutTable::ignoresLigatures))
            && table.coversAny(coverage, m_glyphs.get()))
            m_areSimple = false;
    }

    hb_face_t *m_face;
    hb_shape_plan_t *m_plan;
    GlyphSet m_original = makeGlyphSet();
    GlyphSet m_glyphs = makeGlyphSet(); // with ligatures
    GlyphSet m_changed = makeGlyphSet();
    std::map<quint32, Ends> m_ligatureEnds;
    std::set<std::pair<quint32, quint32>> m_ligatures;
    size_t m_work = 0; // grows while rounds find something
    bool m_areSimple = true;
};

} // namespace

void GlyphSetDeleter::operator()(hb_set_t *set) const
{
    hb_set_destroy(set);
}

GlyphSet makeGlyphSet()
{
    return GlyphSet(hb_set_create());
}

bool FontRules::mayJoin(quint32 first, quint32 second) const
{
    return std::binary_search(ligatures.begin(), ligatures.end(), std::pair(first, second));
}

FontRules readFontRules(hb_face_t *face, hb_shape_plan_t *plan, const hb_set_t *glyphs)
{
    return RuleReader(face, plan, glyphs).read();
}

GlyphSet glyphsNamedByRules(hb_face_t *face, hb_shape_plan_t *plan)
{
    GlyphSet glyphs = makeGlyphSet();
    for (const hb_tag_t table : {HB_OT_TAG_GSUB, HB_OT_TAG_GPOS}) {
        const GlyphSet lookups = makeGlyphSet();
        hb_ot_shape_plan_collect_lookups(plan, table, lookups.get());
        forEach(lookups.get(), [&](quint32 lookup) {
            hb_ot_layout_lookup_collect_glyphs(
                face, table, lookup, glyphs.get(), glyphs.get(), glyphs.get(), glyphs.get());
        });
    }
    return glyphs;
}
