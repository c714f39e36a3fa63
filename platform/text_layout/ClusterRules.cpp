// SPDX-License-Identifier: MIT
#include "platform/text_layout/ClusterRules.h"

#include "platform/text_layout/LayoutTable.h"

#include <hb-ot.h>
#include <hb.h>

#include <algorithm>

namespace {

constexpr int ignoresBasesOrLigatures = LayoutTable::ignoresBases | LayoutTable::ignoresLigatures;

class ClusterRuleReader {
public:
    ClusterRuleReader(hb_face_t *face, const hb_set_t *bases, const hb_set_t *marks)
        : m_face(face)
    {
        hb_set_union(m_bases.get(), bases);
        hb_set_union(m_all.get(), bases);
        hb_set_union(m_all.get(), marks);
        hb_set_union(m_marks.get(), marks);
    }

    ClusterRules read()
    {
        LayoutTable substitutions(m_face, HB_OT_TAG_GSUB);
        closeUnderSubstitution(substitutions);
        forEachLookup(substitutions, HB_OT_TAG_GSUB, [&](const LayoutTable::Lookup &lookup, size_t subtable) {
            readSubstitution(substitutions, lookup, subtable);
        });
        LayoutTable positioning(m_face, HB_OT_TAG_GPOS);
        forEachLookup(positioning, HB_OT_TAG_GPOS, [&](const LayoutTable::Lookup &lookup, size_t subtable) {
            readPositioning(positioning, lookup, subtable);
        });
        excludeOrigins();
        return {.areSimple = m_areSimple, .excluded = std::move(m_excluded)};
    }

private:
    using Slots = std::vector<GlyphSet>; // the glyphs at each place of a rule

    template <typename Visit>
    void forEachLookup(LayoutTable &table, hb_tag_t tag, Visit &&visit)
    {
        const unsigned count = hb_ot_layout_table_get_lookup_count(m_face, tag);
        for (unsigned i = 0; i < count && m_areSimple; ++i) {
            const LayoutTable::Lookup lookup = table.lookup(i);
            for (const size_t subtable : lookup.subtables)
                visit(lookup, subtable);
            m_areSimple = m_areSimple && !table.hasFailed();
        }
    }

    // What a glyph may become, in any context, is of its kind.
    void closeUnderSubstitution(LayoutTable &table)
    {
        constexpr int maxRounds = 16;
        for (int round = 0; round < maxRounds; ++round) {
            const unsigned before =
                hb_set_get_population(m_bases.get()) + hb_set_get_population(m_marks.get());
            m_origins.clear();
            forEachLookup(table, HB_OT_TAG_GSUB, [&](const LayoutTable::Lookup &lookup, size_t subtable) {
                addResults(table, lookup.type, subtable);
            });
            hb_set_union(m_all.get(), m_bases.get());
            hb_set_union(m_all.get(), m_marks.get());
            if (before == hb_set_get_population(m_bases.get()) + hb_set_get_population(m_marks.get()))
                return;
        }
        m_areSimple = false;
    }

    void addResults(LayoutTable &table, int type, size_t subtable)
    {
        const size_t coverage = table.target(subtable, subtable + 2);
        std::vector<std::pair<quint32, size_t>> covered;
        if (type <= LayoutTable::LigatureSubstitution || type == LayoutTable::ReverseSubstitution)
            table.forEachCovered(coverage, m_all.get(),
                [&](quint32 glyph, size_t index) { covered.emplace_back(glyph, index); });
        size_t list = subtable + 6; // of the results, or of the offsets to them
        if (type == LayoutTable::ReverseSubstitution) {
            list = subtable + 4; // behind the glyphs before and after
            for (int side = 0; side < 2; ++side)
                list += 2 + 2 * static_cast<size_t>(table.value(list));
            list += 2;
        }
        for (const auto &[glyph, index] : covered) {
            const size_t place = list + 2 * index;
            if (type == LayoutTable::SingleSubstitution && table.value(subtable) == 1)
                addResult(glyph, (glyph + table.value(subtable + 4)) & 0xFFFF);
            else if (type == LayoutTable::SingleSubstitution || type == LayoutTable::ReverseSubstitution)
                addResult(glyph, table.value(place));
            else
                addListedResults(table, type, glyph, table.target(subtable, place));
        }
    }

    void addListedResults(LayoutTable &table, int type, quint32 glyph, size_t list)
    {
        const size_t count = table.value(list);
        for (size_t i = 0; i < count && !table.hasFailed(); ++i) {
            const size_t place = list + 2 + 2 * i;
            addResult(glyph,
                type == LayoutTable::LigatureSubstitution ? table.value(table.target(list, place))
                                                          : table.value(place));
        }
    }

    void addResult(quint32 glyph, quint32 result)
    {
        if (hb_set_has(m_bases.get(), glyph))
            hb_set_add(m_bases.get(), result);
        if (hb_set_has(m_marks.get(), glyph))
            hb_set_add(m_marks.get(), result);
        m_origins.emplace_back(result, glyph);
        constexpr size_t maxOrigins = 200'000;
        if (m_origins.size() > maxOrigins)
            m_areSimple = false;
    }

    void readSubstitution(LayoutTable &table, const LayoutTable::Lookup &lookup, size_t subtable)
    {
        if (lookup.type < LayoutTable::LigatureSubstitution)
            return;
        const bool isContext =
            lookup.type == LayoutTable::ContextSubstitution || lookup.type == LayoutTable::ChainSubstitution;
        if (isContext && table.value(subtable) == 3)
            readContext(table, lookup, subtable, lookup.type == LayoutTable::ChainSubstitution);
        else if (lookup.type == LayoutTable::LigatureSubstitution)
            readLigatures(table, lookup, subtable);
        else
            excludeCovered(table, table.target(subtable, subtable + 2));
    }

    void readPositioning(LayoutTable &table, const LayoutTable::Lookup &lookup, size_t subtable)
    {
        const bool isContext =
            lookup.type == LayoutTable::ContextPositioning || lookup.type == LayoutTable::ChainPositioning;
        const size_t coverage = table.target(subtable, subtable + 2);
        if (isContext && table.value(subtable) == 3) {
            readContext(table, lookup, subtable, lookup.type == LayoutTable::ChainPositioning);
        } else if (isContext || lookup.type == LayoutTable::CursivePositioning) {
            excludeCovered(table, coverage);
        } else if (lookup.type == LayoutTable::PairPositioning) {
            const bool affectsSecond = table.value(subtable + 6) != 0;
            if (affectsSecond || lookup.flags & ignoresBasesOrLigatures)
                excludeCovered(table, coverage);
        }
    }

    void excludeCovered(LayoutTable &table, size_t coverage)
    {
        table.forEachCovered(
            coverage, m_all.get(), [&](quint32 glyph, size_t) { hb_set_add(m_excluded.get(), glyph); });
    }

    void readContext(LayoutTable &table, const LayoutTable::Lookup &lookup, size_t subtable, bool isChain)
    {
        Slots before;
        Slots slots;
        size_t at = subtable + 2;
        for (int part = isChain ? 0 : 1; part <= (isChain ? 2 : 1); ++part) {
            const size_t count = table.value(at);
            at += isChain ? 2 : 4; // the number of actions comes between in the simple form
            for (size_t i = 0; i < count && !table.hasFailed(); ++i, at += 2) {
                GlyphSet slot = makeGlyphSet();
                table.forEachCovered(table.target(subtable, at), m_all.get(),
                    [&](quint32 glyph, size_t) { hb_set_add(slot.get(), glyph); });
                (part == 0 ? before : slots).push_back(std::move(slot));
            }
        }
        // The glyphs before are listed from the nearest to the farthest.
        for (GlyphSet &slot : before)
            slots.insert(slots.begin(), std::move(slot));
        readRule(slots, lookup.flags);
    }

    void readLigatures(LayoutTable &table, const LayoutTable::Lookup &lookup, size_t subtable)
    {
        std::vector<std::pair<quint32, size_t>> sets;
        table.forEachCovered(
            table.target(subtable, subtable + 2), m_all.get(), [&](quint32 first, size_t index) {
                sets.emplace_back(first, table.target(subtable, subtable + 6 + 2 * index));
            });
        for (const auto &[first, set] : sets) {
            const size_t count = table.value(set);
            for (size_t i = 0; i < count && !table.hasFailed(); ++i) {
                const size_t ligature = table.target(set, set + 2 + 2 * i);
                const size_t componentCount = table.value(ligature + 2);
                Slots slots;
                for (size_t k = 0; k < componentCount && !table.hasFailed(); ++k) {
                    const quint32 glyph = k == 0 ? first : table.value(ligature + 2 + 2 * k);
                    slots.push_back(makeGlyphSet());
                    if (hb_set_has(m_all.get(), glyph))
                        hb_set_add(slots.back().get(), glyph);
                }
                readRule(slots, lookup.flags);
            }
        }
    }

    // A rule that has only marks after its first glyph stays within a cluster. Any other one never applies
    // without the glyphs of one of its places.
    void readRule(const Slots &slots, int flags)
    {
        if (slots.empty())
            return;
        const auto isEmpty = [](const GlyphSet &slot) { return hb_set_is_empty(slot.get()); };
        if (std::any_of(slots.begin(), slots.end(), isEmpty))
            return;
        const bool isOfMarks = std::none_of(slots.begin() + 1, slots.end(), [this](const GlyphSet &slot) {
            const GlyphSet bases = makeGlyphSet();
            hb_set_union(bases.get(), slot.get());
            hb_set_intersect(bases.get(), m_bases.get());
            return !hb_set_is_empty(bases.get());
        });
        if (isOfMarks && !(flags & ignoresBasesOrLigatures))
            return;
        const auto smallest =
            std::min_element(slots.begin(), slots.end(), [](const GlyphSet &left, const GlyphSet &right) {
                return hb_set_get_population(left.get()) < hb_set_get_population(right.get());
            });
        hb_set_union(m_excluded.get(), smallest->get());
    }

    // Excludes the glyphs that may become an excluded one.
    void excludeOrigins()
    {
        for (bool isChanged = true; isChanged && m_areSimple;) {
            isChanged = false;
            for (const auto &[result, origin] : m_origins) {
                if (hb_set_has(m_excluded.get(), result) && !hb_set_has(m_excluded.get(), origin)) {
                    hb_set_add(m_excluded.get(), origin);
                    isChanged = true;
                }
            }
        }
    }

    hb_face_t *m_face;
    GlyphSet m_bases = makeGlyphSet();
    GlyphSet m_marks = makeGlyphSet();
    GlyphSet m_all = makeGlyphSet();
    GlyphSet m_excluded = makeGlyphSet();
    std::vector<std::pair<quint32, quint32>> m_origins; // result and a glyph that may become it
    bool m_areSimple = true;
};

} // namespace

ClusterRules readClusterRules(hb_face_t *face, const hb_set_t *bases, const hb_set_t *marks)
{
    return ClusterRuleReader(face, bases, marks).read();
}
