// SPDX-License-Identifier: MIT
// WordCounterModel holds the eight statistics of one text and the eight strings that show them. It counts
// styled text itself and copies counts made elsewhere; displaying the strings is left to others.
// Thread: one at a time; main in a program with windows.  Owner: a statistics panel, a command, a worker.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "text_statistics/ParagraphMemory.h"
#include "text_statistics/PieceCounters.h"
#include "text_statistics/QBYDocxMetaData.h"
#include "text_statistics/QBYWordCounterStats.h"
#include "text_statistics/TextCounter.h"

#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <span>

/// Empty at first: counts 0, strings null. Every update replaces all eight strings.
class WordCounterModel {
public:
    /// Counts under the user's preferences and locale, which are read for every count.
    WordCounterModel()
        : WordCounterModel(currentCountingRules)
    {
    }
    /// rules: called for every count.
    explicit WordCounterModel(std::function<CountingRules()> rules)
        : m_rules(std::move(rules))
    {
    }

    /// Stores the text and counts it before returning; without a text all counts become 0.
    void setAttributedStringToCount(const std::optional<AttributedString> &attributedStringToCount);
    [[nodiscard]] const std::optional<AttributedString> &attributedStringToCount() const
    {
        return m_attributedStringToCount;
    }

    /// Stores the record and copies its counts; without a record the counts stay as they were.
    void setDocXMetaDataToFormat(const std::optional<QBYDocxMetaData> &docXMetaDataToFormat);
    [[nodiscard]] const std::optional<QBYDocxMetaData> &docXMetaDataToFormat() const
    {
        return m_docXMetaDataToFormat;
    }

    /// Counts the stored text again (true) or copies from the stored Word record again (false).
    void updateStatsUsingAttributedString(bool usingAttributedString);

    void updateModelWithPrepopulatedStats(const QBYWordCounterStats &stats);
    [[nodiscard]] QBYWordCounterStats statsRepresentation() const { return m_stats; }

    /// Makes the strings from the counts: long ones in style 0, short ones in style 1. In any other style the
    /// old strings stay; deliberately unlike WordCounterStatStringFormatter.
    void doUpdateDisplayStrings();

    static constexpr qint64 shortStyle = 1; ///< as in "•Words: 12"
    /// Takes effect at the next update.
    void setFormattedStringStyle(qint64 formattedStringStyle)
    {
        m_formattedStringStyle = formattedStringStyle;
    }
    [[nodiscard]] qint64 formattedStringStyle() const { return m_formattedStringStyle; }

    /// progress: called while styled text is counted, with a position in UTF-16 code units up to the text's
    /// length.
    void setProgress(TextCounter::Progress progress) { m_progress = std::move(progress); }

    /// From now on the counts of paragraphs are remembered: a text that is counted again after an edit costs
    /// what has changed.
    void rememberParagraphs() { m_memory.emplace(); }

    /// Starts threads that help to count long texts: this many with the caller's, up to the maximum of
    /// PieceCounters. They wait until they are needed.
    void startThreads(int threads);

    // The counts. The setters only store.
    [[nodiscard]] quint64 numberOfWords() const { return m_stats.numberOfWords; }
    [[nodiscard]] quint64 numberOfCharacters() const { return m_stats.numberOfCharacters; }
    [[nodiscard]] quint64 numberOfCharactersIncludingWhitespace() const
    {
        return m_stats.numberOfCharactersIncludingWhitespace;
    }
    [[nodiscard]] quint64 numberOfSentences() const { return m_stats.numberOfSentences; }
    [[nodiscard]] quint64 numberOfLines() const { return m_stats.numberOfLines; }
    [[nodiscard]] quint64 numberOfHardLineBreaks() const { return m_stats.numberOfHardLineBreaks; }
    [[nodiscard]] quint64 numberOfParagraphs() const { return m_stats.numberOfParagraphs; }
    [[nodiscard]] quint64 numberOfIndentedParagraphs() const { return m_stats.numberOfIndentedParagraphs; }
    void setNumberOfWords(quint64 count) { m_stats.numberOfWords = count; }
    void setNumberOfCharacters(quint64 count) { m_stats.numberOfCharacters = count; }
    void setNumberOfCharactersIncludingWhitespace(quint64 count)
    {
        m_stats.numberOfCharactersIncludingWhitespace = count;
    }
    void setNumberOfSentences(quint64 count) { m_stats.numberOfSentences = count; }
    void setNumberOfLines(quint64 count) { m_stats.numberOfLines = count; }
    void setNumberOfHardLineBreaks(quint64 count) { m_stats.numberOfHardLineBreaks = count; }
    void setNumberOfParagraphs(quint64 count) { m_stats.numberOfParagraphs = count; }
    void setNumberOfIndentedParagraphs(quint64 count) { m_stats.numberOfIndentedParagraphs = count; }

    /// The string of one statistic; null before the first update. The accessors below read and store the same
    /// strings.
    [[nodiscard]] const QString &formattedString(Statistic statistic) const
    {
        return m_strings.at(static_cast<std::size_t>(statistic));
    }
    [[nodiscard]] QString wordCountFormattedString() const { return formattedString(Statistic::Words); }
    [[nodiscard]] QString characterCountFormattedString() const
    {
        return formattedString(Statistic::Characters);
    }
    [[nodiscard]] QString characterCountFormattedStringIncludingWhiteSpace() const
    {
        return formattedString(Statistic::CharactersIncludingWhitespace);
    }
    [[nodiscard]] QString numberOfSentencesCountFormattedString() const
    {
        return formattedString(Statistic::Sentences);
    }
    [[nodiscard]] QString numberOfLinesFormattedString() const { return formattedString(Statistic::Lines); }
    [[nodiscard]] QString numberOfHardLineBreaksFormattedString() const
    {
        return formattedString(Statistic::HardLineBreaks);
    }
    [[nodiscard]] QString numberOfParagraphsFormattedString() const
    {
        return formattedString(Statistic::Paragraphs);
    }
    [[nodiscard]] QString numberOfIndentedParagraphsFormattedString() const
    {
        return formattedString(Statistic::IndentedParagraphs);
    }
    void setWordCountFormattedString(const QString &text) { store(Statistic::Words, text); }
    void setCharacterCountFormattedString(const QString &text) { store(Statistic::Characters, text); }
    void setCharacterCountFormattedStringIncludingWhiteSpace(const QString &text)
    {
        store(Statistic::CharactersIncludingWhitespace, text);
    }
    void setNumberOfSentencesCountFormattedString(const QString &text) { store(Statistic::Sentences, text); }
    void setNumberOfLinesFormattedString(const QString &text) { store(Statistic::Lines, text); }
    void setNumberOfHardLineBreaksFormattedString(const QString &text)
    {
        store(Statistic::HardLineBreaks, text);
    }
    void setNumberOfParagraphsFormattedString(const QString &text) { store(Statistic::Paragraphs, text); }
    void setNumberOfIndentedParagraphsFormattedString(const QString &text)
    {
        store(Statistic::IndentedParagraphs, text);
    }

private:
    void countAttributedString();
    [[nodiscard]] QBYWordCounterStats countNewParagraphs(
        const AttributedString &text, const CountingRules &rules);
    void copyDocXMetaData();
    [[nodiscard]] QBYWordCounterStats countOnThreads(
        const AttributedString &text, const CountingRules &rules);
    void countPieces(const AttributedString &text, const CountingRules &rules, double columnWidth,
        std::span<CountedPiece> pieces);
    [[nodiscard]] TextCounter::Progress halfOfProgress(qsizetype done) const;
    void store(Statistic statistic, const QString &text)
    {
        m_strings.at(static_cast<std::size_t>(statistic)) = text;
    }

    std::function<CountingRules()> m_rules;
    TextCounter m_counter;
    PieceCounters m_pieces;
    std::optional<ParagraphMemory> m_memory;
    TextCounter::Progress m_progress;
    std::optional<AttributedString> m_attributedStringToCount;
    std::optional<QBYDocxMetaData> m_docXMetaDataToFormat;
    qint64 m_formattedStringStyle = 0;
    QBYWordCounterStats m_stats;
    std::array<QString, statisticCount> m_strings; ///< by Statistic
};
