// SPDX-License-Identifier: MIT
// WordRules are other ways to count words and characters than ours, for those who must deliver the number
// that another program shows. Without them, TextCounter's counts hold.
// Thread: any; values.
#pragma once

#include "text_statistics/CountingRules.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QString>
#include <QStringView>

class TextCounter;

struct WordRules {
    /// What a word is before the other rules apply.
    enum class Basis {
        Segments, ///< the segments between Unicode word boundaries, as everywhere in Quillbay
        Blanks, ///< everything between white space and separators, punctuation too
    };
    /// With Basis::Blanks: which characters are words of their own.
    enum class Singles {
        None,
        Ideographs, ///< Chinese and Japanese, with their punctuation
        IdeographsHangulThai,
    };
    enum class Hyphenated { AsBasis, One, Several };
    enum class Urls { AsBasis, One, None };
    enum class Characters {
        CodeUnits, ///< as everywhere in Quillbay
        CodeUnitsOfLines, ///< without the line ends between paragraphs
        GraphemesOfLines, ///< grapheme clusters, without the line ends between paragraphs
    };

    Basis basis = Basis::Segments;
    Singles singles = Singles::None;
    Hyphenated hyphenated = Hyphenated::AsBasis;
    Urls urls = Urls::AsBasis;
    Characters characters = Characters::CodeUnits;
    QString separators = {}; ///< characters between words beside white space

    bool operator==(const WordRules &) const = default;

    /// As LibreOffice Writer 7.4 counts with its default settings.
    static WordRules ofLibreOffice();
    /// As word processors count that know no separators but white space.
    static WordRules ofWordProcessors();
};

/// The words of a text by these rules, in time proportional to its length. text: the rules of
/// Basis::Segments.
quint64 numberOfWordsBy(
    const WordRules &rules, QStringView text, const TextRules &textRules, TextCounter &counter);

/// Puts the words and characters by these rules in place of ours; the other counts stay.
void applyWordRules(const WordRules &rules, QStringView text, const TextRules &textRules,
    TextCounter &counter, QBYWordCounterStats &stats);
