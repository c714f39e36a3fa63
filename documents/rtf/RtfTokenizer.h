// SPDX-License-Identifier: MIT
// RtfTokenizer splits the bytes of an RTF document into braces, control words and text. The meaning of words
// is left to RtfWords, except for \bin, which precedes binary data.
// Thread: one.  Owner: RtfInterpreter. The bytes must outlive the tokenizer and its tokens.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

struct RtfToken {
    enum class Kind {
        End,
        GroupBegin,
        GroupEnd,
        Word, ///< bytes: its letters; parameter
        Symbol, ///< byte: the character after the backslash
        Byte, ///< byte: the value of \'hh
        Text, ///< bytes: at least one, none of them NUL, CR or LF
        Binary, ///< \bin and its data
    };

    Kind kind = Kind::End;
    uchar byte = 0;
    QByteArrayView bytes = {};
    std::optional<qint32> parameter = {}; ///< clamped to 32 bits
};

/// Accepts any sequence of bytes. Skips NUL, CR and LF between tokens, a \' without two hexadecimal digits,
/// and a backslash at the end.
class RtfTokenizer {
public:
    explicit RtfTokenizer(QByteArrayView bytes)
        : m_at(bytes.begin())
        , m_end(bytes.end())
    {
    }

    /// Bytes. No code unit of the text takes less than one.
    [[nodiscard]] qsizetype remaining() const { return m_end - m_at; }

    /// Returns Kind::End after the last token, however often it is called.
    RtfToken next();

    /// Appends what the next tokens stand for as long as they are ASCII text, \par and \tab, which is most of
    /// a text without styles: the same as reading them one by one, but at the speed of memory. At most
    /// maxLength code units.
    void appendPlainRun(QString &text, qsizetype maxLength);

private:
    RtfToken readControl();
    RtfToken readWord();
    std::optional<qint32> readParameter();
    RtfToken readText();
    /// Whether a control word is next, which has no parameter; then it is skipped with the blank behind it.
    bool skipWord(QByteArrayView word);
    void skipBinary(qint32 length);

    const char *m_at;
    const char *m_end;
};
