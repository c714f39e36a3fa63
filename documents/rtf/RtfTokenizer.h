// SPDX-License-Identifier: MIT
// RtfTokenizer cuts the bytes of an RTF document into groups, control words and text; it knows no word but
// \bin, whose data is no RTF. Thread: one.  Owner: the reading of one document; the bytes must outlive it and
// its tokens.
#pragma once

#include <QByteArrayView>

#include <optional>

struct RtfToken {
    enum class Kind {
        End,
        GroupBegin,
        GroupEnd,
        Word, ///< bytes: its letters; parameter
        Symbol, ///< byte: the character behind the backslash
        Byte, ///< byte: what \'hh stands for
        Text, ///< bytes: at least one, none of them NUL, CR or LF
        Binary, ///< \bin and its data
    };

    Kind kind = Kind::End;
    uchar byte = 0;
    QByteArrayView bytes = {};
    std::optional<qint32> parameter = {}; ///< the nearest number of 32 bits
};

/// Every sequence of bytes has tokens. NUL, CR and LF between them are left out, as is a \' without two
/// hexadecimal digits; a backslash as the last byte is none.
class RtfTokenizer {
public:
    explicit RtfTokenizer(QByteArrayView bytes)
        : m_at(bytes.begin())
        , m_end(bytes.end())
    {
    }

    /// Behind the last one, Kind::End again and again.
    RtfToken next();

private:
    RtfToken control();
    RtfToken word();
    std::optional<qint32> parameter();
    RtfToken text();
    void skipBinary(qint32 length);

    const char *m_at;
    const char *m_end;
};
