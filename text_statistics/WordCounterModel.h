// SPDX-License-Identifier: MIT
// WordCounterModel holds the eight statistics of one text and the eight strings that show them. It counts a
// styled text itself and copies what others counted; where the strings are shown is not its business. Thread:
// one at a time, the main thread in a program with windows.  Owner: a statistics panel, or a command.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "text_statistics/QBYDocxMetaData.h"
#include "text_statistics/QBYWordCounterStats.h"
#include "text_statistics/TextCounter.h"

#include <QString>

#include <functional>
#include <optional>

/// Empty at first: counts 0, strings null. Every filling replaces all eight strings.
class WordCounterModel {
public:
    /// Counts under the user's preferences and locale, read anew for every count.
    WordCounterModel()
        : WordCounterModel(currentCountingRules)
    {
    }
    /// Counts under the rules that the function gives, asked for every count.
    explicit WordCounterModel(std::function<CountingRules()> rules)
        : m_rules(std::move(rules))
    {
    }

    /// Stores the text and counts it, at once; without a text all counts become 0.
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
    /// old strings stay - unlike in WordCounterStatStringFormatter, on purpose.
    void doUpdateDisplayStrings();

    /// Takes effect at the next filling.
    static constexpr qint64 shortStyle = 1; ///< as in "Words: 12"
    void setFormattedStringStyle(qint64 formattedStringStyle)
    {
        m_formattedStringStyle = formattedStringStyle;
    }
    [[nodiscard]] qint64 formattedStringStyle() const { return m_formattedStringStyle; }

    /// Told how far a count of styled text has come, in UTF-16 code units up to the text's length.
    void setProgress(TextCounter::Progress progress) { m_progress = std::move(progress); }

    // The counts: plain stores, in the record.
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

    // The strings: plain stores, null before the first filling.
    [[nodiscard]] QString wordCountFormattedString() const { return m_strings.words; }
    [[nodiscard]] QString characterCountFormattedString() const { return m_strings.characters; }
    [[nodiscard]] QString characterCountFormattedStringIncludingWhiteSpace() const
    {
        return m_strings.charactersIncludingWhiteSpace;
    }
    [[nodiscard]] QString numberOfSentencesCountFormattedString() const { return m_strings.sentences; }
    [[nodiscard]] QString numberOfLinesFormattedString() const { return m_strings.lines; }
    [[nodiscard]] QString numberOfHardLineBreaksFormattedString() const { return m_strings.hardLineBreaks; }
    [[nodiscard]] QString numberOfParagraphsFormattedString() const { return m_strings.paragraphs; }
    [[nodiscard]] QString numberOfIndentedParagraphsFormattedString() const
    {
        return m_strings.indentedParagraphs;
    }
    void setWordCountFormattedString(const QString &text) { m_strings.words = text; }
    void setCharacterCountFormattedString(const QString &text) { m_strings.characters = text; }
    void setCharacterCountFormattedStringIncludingWhiteSpace(const QString &text)
    {
        m_strings.charactersIncludingWhiteSpace = text;
    }
    void setNumberOfSentencesCountFormattedString(const QString &text) { m_strings.sentences = text; }
    void setNumberOfLinesFormattedString(const QString &text) { m_strings.lines = text; }
    void setNumberOfHardLineBreaksFormattedString(const QString &text) { m_strings.hardLineBreaks = text; }
    void setNumberOfParagraphsFormattedString(const QString &text) { m_strings.paragraphs = text; }
    void setNumberOfIndentedParagraphsFormattedString(const QString &text)
    {
        m_strings.indentedParagraphs = text;
    }

private:
    struct DisplayStrings {
        QString words;
        QString characters;
        QString charactersIncludingWhiteSpace;
        QString sentences;
        QString lines;
        QString hardLineBreaks;
        QString paragraphs;
        QString indentedParagraphs;
    };

    void countAttributedString();
    void copyDocXMetaData();
    [[nodiscard]] TextCounter::Progress halfOfProgress(qsizetype done) const;

    std::function<CountingRules()> m_rules;
    TextCounter m_counter;
    TextCounter::Progress m_progress;
    std::optional<AttributedString> m_attributedStringToCount;
    std::optional<QBYDocxMetaData> m_docXMetaDataToFormat;
    qint64 m_formattedStringStyle = 0;
    QBYWordCounterStats m_stats;
    DisplayStrings m_strings;
};
