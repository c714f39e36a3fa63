// SPDX-License-Identifier: MIT
// LayoutTable reads the lookups of a 'GSUB' or 'GPOS' table (OpenType 1.9, "OpenType Layout Common Table
// Formats"), for FontRules. Positions are bytes from the start of the table. A damaged table makes every
// later value 0, and hasFailed() true.
// Thread: one at a time.  Owner: the caller.
#pragma once

#include "platform/text_layout/FontRules.h"

#include <functional>

// NOLINTBEGIN(bugprone-reserved-identifier,modernize-use-using): as in the library's own header
typedef struct hb_blob_t hb_blob_t;
// NOLINTEND(bugprone-reserved-identifier,modernize-use-using)

class LayoutTable {
public:
    // The types of lookups.
    enum Substitution {
        SingleSubstitution = 1,
        MultipleSubstitution = 2,
        AlternateSubstitution = 3,
        LigatureSubstitution = 4,
        ContextSubstitution = 5,
        ChainSubstitution = 6,
        ReverseSubstitution = 8,
    };
    enum Positioning {
        SinglePositioning = 1,
        PairPositioning,
        CursivePositioning,
        MarkToBase,
        MarkToLigature,
        MarkToMark,
        ContextPositioning,
        ChainPositioning,
    };

    // Flags of lookups that look past glyphs that are not marks.
    static constexpr int ignoresBases = 2;
    static constexpr int ignoresLigatures = 4;

    LayoutTable(hb_face_t *face, quint32 tag);
    LayoutTable(const LayoutTable &) = delete;
    LayoutTable &operator=(const LayoutTable &) = delete;
    ~LayoutTable();

    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }
    quint16 value(size_t position);
    /// The position that an offset at a position leads to, counted from base.
    size_t target(size_t base, size_t position) { return base + value(position); }

    struct Lookup {
        int type; ///< of the subtables, even if they are extensions
        int flags;
        std::vector<size_t> subtables;
    };
    Lookup lookup(quint32 index);

    using VisitGlyph = std::function<void(quint32 glyph, size_t coverageIndex)>;
    /// Visits the glyphs of a coverage table that are in a set.
    void forEachCovered(size_t coverage, const hb_set_t *glyphs, const VisitGlyph &visit);
    bool coversAny(size_t coverage, const hb_set_t *glyphs);

    int classOf(size_t classDefinition, quint32 glyph);
    /// The classes that glyphs of a set may have, by number; class 0 always counts.
    std::vector<bool> classesOf(size_t classDefinition, const hb_set_t *glyphs);

private:
    quint32 longValue(size_t position);
    using VisitRange = std::function<void(quint32 first, quint32 last, int value)>;
    void forEachClassRange(size_t classDefinition, const VisitRange &visit);

    int m_extensionType;
    hb_blob_t *m_blob;
    const unsigned char *m_data;
    size_t m_length = 0;
    size_t m_readings = 0;
    bool m_hasFailed = false;
};
