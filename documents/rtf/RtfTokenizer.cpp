// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfTokenizer.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<bool, 256> makeTextEndTable()
{
    std::array<bool, 256> table{};
    for (const char byte : {'\\', '{', '}', '\r', '\n', '\0'})
        table.at(static_cast<uchar>(byte)) = true;
    return table;
}

constexpr std::array<bool, 256> endsText = makeTextEndTable();

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
