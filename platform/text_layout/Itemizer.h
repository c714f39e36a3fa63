// SPDX-License-Identifier: MIT
// Itemizer cuts a paragraph into text runs, first to last, by its attributes, directions, scripts and fonts.
// Measuring them is left to MeasuredParagraph.
// Thread: one at a time.  Owner: MeasuredParagraph.
#pragma once

#include "platform/segmentation/BidiRuns.h"
#include "platform/segmentation/GraphemeClusters.h"
#include "platform/segmentation/Paragraphs.h"
#include "platform/segmentation/ScriptRuns.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/text_layout/TextRun.h"

#include <QHash>

class Itemizer {
public:
    explicit Itemizer(FontLibrary &fonts)
        : m_fonts(fonts)
    {
    }

    /// text: must live until the last next().
    void setParagraph(const AttributedString &text, const Paragraph &paragraph);

    /// The next run, of at most maxLength code units (at least 1) or a few more to keep a grapheme cluster
    /// whole. To be called only while !isAtEnd().
    TextRun next(qsizetype maxLength);

    /// Goes back to a position inside the last run, which must be Text; the next run starts there.
    void returnTo(qsizetype position)
    {
        m_position = position;
        m_isInLongCluster = false;
    }

    [[nodiscard]] bool isAtEnd() const { return m_position >= m_text.size(); }
    [[nodiscard]] bool isParagraphRightToLeft() const { return m_bidi.isParagraphRightToLeft(); }

    /// The style of a character that is in no run: a paragraph separator. position: in the whole text.
    TextStyle styleAt(qsizetype position);

    /// The style that attributes mean on this machine.
    TextStyle resolve(const TextAttributes &attributes);

private:
    void updateRuns();
    /// The end, up to limit, of the run in one font that starts at m_position.
    qsizetype textEnd(qsizetype limit, qsizetype maxLength, FontFace *&face);
    /// The end, up to limit, of the marks at m_position.
    [[nodiscard]] qsizetype excessMarksEnd(qsizetype limit) const;

    FontLibrary &m_fonts;
    BidiRuns m_bidi;
    const AttributedString *m_source = nullptr;
    qsizetype m_offset = 0; // of the paragraph in the text
    QStringView m_text;
    qsizetype m_position = 0;
    bool m_isInLongCluster = false; // the cluster that contains m_position began in the last run

    // The runs of attributes, direction and script that contain m_position.
    qsizetype m_attributesEnd = 0;
    qsizetype m_attributesRun = 0;
    TextStyle m_style;
    BidiRuns::Run m_direction{};
    ScriptRun m_script{};
    ScriptRuns m_scripts;
    CodeUnitTable<bool> m_standsAlone{&standsAlone};
    FontFace *m_lastFace = nullptr;

    struct StyleKey {
        std::optional<FontAttributes> font;
        QString language;
        bool operator==(const StyleKey &) const = default;
    };
    friend size_t qHash(const StyleKey &key, size_t seed)
    {
        return qHashMulti(key.font ? qHash(*key.font, seed) : seed, key.language);
    }
    QHash<StyleKey, TextStyle> m_styles; // results of resolve()
};
