// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfTokenizer.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace {

constexpr std::array<bool, 256> makeTextEndTable()
{
    std::array<bool, 256> table{};
    for (const char byte : {'\\', '{', '}', '\r', '\n', '\0'})
        table.at(static_cast<uchar>(byte)) = true;
    return table;
}

constexpr std::array<bool, 256> endsText = makeTextEndTable();

bool isPlain(char byte)
{
    return static_cast<uchar>(byte) < 0x80 && !endsText[static_cast<uchar>(byte)];
}

constexpr qsizetype blockLength = 16; // bytes

/// Writes the code units of a whole block, and returns how many bytes of it are plain, counted from its
/// start: those behind them must be written again.
qsizetype widenBlock(const char *from, char16_t *to)
{
    using Bytes = uchar __attribute__((vector_size(blockLength)));
    using Units = char16_t __attribute__((vector_size(2 * blockLength)));
    Bytes bytes;
    std::memcpy(&bytes, from, sizeof bytes);
    const Units units = __builtin_convertvector(bytes, Units);
    std::memcpy(to, &units, sizeof units);
    const auto others = (bytes >= 0x80) | (bytes == '\\') | (bytes == '{') | (bytes == '}') | (bytes == '\r')
        | (bytes == '\n') | (bytes == '\0');
    std::array<quint64, 2> bits; // eight for each byte
    std::memcpy(bits.data(), &others, sizeof bits);
    if constexpr (std::endian::native == std::endian::big)
        bits = {qbswap(bits[0]), qbswap(bits[1])};
    return bits[0] != 0 ? std::countr_zero(bits[0]) / 8 : 8 + std::countr_zero(bits[1]) / 8;
}

bool isLetter(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

/// Absent if it is not a hexadecimal digit.
std::optional<int> hexadecimalValue(char digit)
{
    if (isDigit(digit))
        return digit - '0';
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'F')
        return digit - 'A' + 10;
    return std::nullopt;
}

} // namespace

bool RtfTokenizer::skipWord(QByteArrayView word)
{
    if (m_end - m_at <= word.size() || !QByteArrayView(m_at, m_end).startsWith(word))
        return false;
    const char *const behind = m_at + word.size();
    if (isLetter(*behind) || isDigit(*behind) || *behind == '-')
        return false;
    m_at = *behind == ' ' ? behind + 1 : behind;
    return true;
}

void RtfTokenizer::appendPlainRun(QString &text, qsizetype maxLength)
{
    const qsizetype start = text.size();
    const qsizetype room =
        std::min<qsizetype>(m_end - m_at, maxLength); // no code unit takes less than a byte
    text.resize(start + room);
    auto *to = reinterpret_cast<char16_t *>(text.data()) + start;
    const char16_t *const end = to + room;
    while (to != end && m_at != m_end) {
        const bool fitsBlock = end - to >= blockLength && m_end - m_at >= blockLength;
        if (const qsizetype plain = fitsBlock ? widenBlock(m_at, to) : 0) {
            m_at += plain;
            to += plain;
        } else if (isPlain(*m_at)) {
            *to++ = static_cast<uchar>(*m_at++);
        } else if (*m_at == '\0' || *m_at == '\r' || *m_at == '\n') {
            ++m_at;
        } else if (skipWord("\\par")) {
            *to++ = u'\n';
        } else if (skipWord("\\tab")) {
            *to++ = u'\t';
        } else {
            break;
        }
    }
    text.truncate(text.size() - (end - to));
}

RtfToken RtfTokenizer::next()
{
    while (m_at != m_end) {
        switch (*m_at) {
        case '\0':
        case '\r':
        case '\n':
            ++m_at;
            break;
        case '{':
            ++m_at;
            return {.kind = RtfToken::Kind::GroupBegin};
        case '}':
            ++m_at;
            return {.kind = RtfToken::Kind::GroupEnd};
        case '\\': {
            ++m_at;
            const RtfToken token = readControl();
            if (token.kind != RtfToken::Kind::End)
                return token;
            break;
        }
        default:
            return readText();
        }
    }
    return {};
}

/// Starts after a backslash. Kind::End if the backslash begins no token.
RtfToken RtfTokenizer::readControl()
{
    if (m_at == m_end)
        return {};
    if (isLetter(*m_at))
        return readWord();
    const char symbol = *m_at++;
    if (symbol != '\'')
        return {.kind = RtfToken::Kind::Symbol, .byte = static_cast<uchar>(symbol)};
    if (m_end - m_at < 2)
        return {};
    const std::optional<int> high = hexadecimalValue(m_at[0]);
    const std::optional<int> low = hexadecimalValue(m_at[1]);
    if (!high || !low)
        return {};
    m_at += 2;
    return {.kind = RtfToken::Kind::Byte, .byte = static_cast<uchar>(*high * 16 + *low)};
}

RtfToken RtfTokenizer::readWord()
{
    const char *const begin = m_at;
    m_at = std::find_if_not(m_at, m_end, isLetter);
    RtfToken token{.kind = RtfToken::Kind::Word, .bytes = QByteArrayView(begin, m_at)};
    token.parameter = readParameter();
    if (m_at != m_end && *m_at == ' ')
        ++m_at;
    if (token.bytes == "bin") {
        token.kind = RtfToken::Kind::Binary;
        skipBinary(token.parameter.value_or(0));
    }
    return token;
}

std::optional<qint32> RtfTokenizer::readParameter()
{
    const bool isNegative = m_end - m_at >= 2 && m_at[0] == '-' && isDigit(m_at[1]);
    if (isNegative)
        ++m_at;
    else if (m_at == m_end || !isDigit(*m_at))
        return std::nullopt;
    qint64 number = 0;
    for (; m_at != m_end && isDigit(*m_at); ++m_at)
        number = std::min<qint64>(number * 10 + (*m_at - '0'), -qint64{INT32_MIN});
    return static_cast<qint32>(isNegative ? -number : std::min<qint64>(number, INT32_MAX));
}

RtfToken RtfTokenizer::readText()
{
    const char *const begin = m_at;
    m_at = std::find_if(m_at, m_end, [](char byte) { return endsText[static_cast<uchar>(byte)]; });
    return {.kind = RtfToken::Kind::Text, .bytes = QByteArrayView(begin, m_at)};
}

void RtfTokenizer::skipBinary(qint32 length)
{
    m_at += std::clamp<qptrdiff>(length, 0, m_end - m_at);
}
