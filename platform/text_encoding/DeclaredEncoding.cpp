// SPDX-License-Identifier: MIT
#include "platform/text_encoding/DeclaredEncoding.h"

#include "platform/text_encoding/AsciiBytes.h"
#include "platform/text_encoding/EncodingLabels.h"

#include <QByteArray>

#include <algorithm>
#include <cstring>
#include <optional>
#include <string_view>

namespace {

/// Bytes of a page to search for meta elements and the XML declaration (HTML standard).
constexpr qsizetype prescanLength = 1024;

bool isLetter(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

/// HTML standard, "algorithm for extracting a character encoding from a meta element".
const char *encodingInContentType(QByteArrayView type)
{
    constexpr QByteArrayView word = "charset";
    for (qsizetype at = 0; at + word.size() <= type.size(); ++at) {
        if (!startsWithWord(type.sliced(at), word))
            continue;
        qsizetype next = at + word.size();
        const auto skipSpaces = [&] {
            while (next < type.size() && isHtmlSpace(type[next]))
                ++next;
        };
        skipSpaces();
        if (next == type.size() || type[next] != '=')
            continue;
        ++next;
        skipSpaces();
        const QByteArrayView value = type.sliced(next);
        if (value.startsWith('"') || value.startsWith('\'')) {
            const qsizetype end = value.indexOf(value[0], 1);
            return end < 0 ? nullptr : encodingOfLabel(value.sliced(1, end - 1));
        }
        const auto *end = std::find_if(
            value.begin(), value.end(), [](char byte) { return isHtmlSpace(byte) || byte == ';'; });
        return encodingOfLabel(value.first(end - value.begin()));
    }
    return nullptr;
}

/// A declaration that was read as ASCII cannot stand in UTF-16 or UTF-32; the HTML standard takes UTF-8 then.
const char *encodingOfAsciiPage(const char *named)
{
    const bool isWide =
        named && (std::strncmp(named, "UTF-16", 6) == 0 || std::strncmp(named, "UTF-32", 6) == 0);
    return isWide ? "UTF-8" : named;
}

/// Scans the beginning of a page for a meta element that names its encoding.
class Prescan {
public:
    explicit Prescan(QByteArrayView page)
        : m_bytes(page.first(std::min(page.size(), prescanLength)))
    {
    }

    const char *encoding()
    {
        for (; !isAtEnd(); ++m_at) {
            if (m_bytes[m_at] != '<')
                continue;
            if (const char *found = encodingInMarkup())
                return found;
        }
        return nullptr;
    }

private:
    struct Attribute {
        QByteArray name;
        QByteArray value;
    };

    [[nodiscard]] bool isAtEnd() const { return m_at >= m_bytes.size(); }
    [[nodiscard]] QByteArrayView rest() const { return m_bytes.sliced(m_at); }

    /// Starts at a "<"; stops at the last byte of the markup.
    const char *encodingInMarkup()
    {
        const QByteArrayView markup = rest();
        const auto byteAt = [&](qsizetype at) { return at < markup.size() ? markup[at] : '\0'; };
        if (markup.startsWith("<!--")) {
            const qsizetype end = m_bytes.indexOf("-->", m_at + 2);
            m_at = end < 0 ? m_bytes.size() : end + 2;
        } else if (startsWithWord(markup, "<meta") && (isHtmlSpace(byteAt(5)) || byteAt(5) == '/')) {
            m_at += 5;
            return encodingInMeta();
        } else if (isLetter(byteAt(1)) || (byteAt(1) == '/' && isLetter(byteAt(2)))) {
            while (!isAtEnd() && !isHtmlSpace(m_bytes[m_at]) && m_bytes[m_at] != '>')
                ++m_at;
            while (nextAttribute()) { }
        } else if (byteAt(1) == '!' || byteAt(1) == '/' || byteAt(1) == '?') {
            while (!isAtEnd() && m_bytes[m_at] != '>')
                ++m_at;
        }
        return nullptr;
    }

    const char *encodingInMeta()
    {
        bool isContentType = false;
        const char *ofContent = nullptr;
        std::optional<const char *> ofCharset;
        while (const std::optional<Attribute> attribute = nextAttribute()) {
            if (attribute->name == "http-equiv")
                isContentType = isContentType || attribute->value == "content-type";
            else if (attribute->name == "content" && !ofContent)
                ofContent = encodingInContentType(attribute->value);
            else if (attribute->name == "charset" && !ofCharset)
                ofCharset = encodingOfLabel(attribute->value);
        }
        if (ofCharset)
            return encodingOfAsciiPage(*ofCharset);
        return isContentType ? encodingOfAsciiPage(ofContent) : nullptr;
    }

    /// HTML standard, "get an attribute", in lower case. Absent at the end of the tag, at its ">".
    std::optional<Attribute> nextAttribute()
    {
        while (!isAtEnd() && (isHtmlSpace(m_bytes[m_at]) || m_bytes[m_at] == '/'))
            ++m_at;
        if (isAtEnd() || m_bytes[m_at] == '>')
            return std::nullopt;
        const qsizetype start = m_at;
        while (!isAtEnd() && !isHtmlSpace(m_bytes[m_at]) && m_bytes[m_at] != '/' && m_bytes[m_at] != '>'
            && (m_bytes[m_at] != '=' || m_at == start))
            ++m_at;
        Attribute attribute{m_bytes.sliced(start, m_at - start).toByteArray().toLower(), {}};
        skipSpaces();
        if (isAtEnd() || m_bytes[m_at] != '=')
            return attribute;
        ++m_at;
        attribute.value = nextValue();
        return attribute;
    }

    QByteArray nextValue()
    {
        skipSpaces();
        if (isAtEnd())
            return {};
        const char quote = m_bytes[m_at];
        if (quote == '"' || quote == '\'') {
            const qsizetype start = ++m_at;
            const qsizetype end = m_bytes.indexOf(quote, start);
            m_at = end < 0 ? m_bytes.size() : end + 1;
            return m_bytes.sliced(start, (end < 0 ? m_bytes.size() : end) - start).toByteArray().toLower();
        }
        const qsizetype start = m_at;
        while (!isAtEnd() && !isHtmlSpace(m_bytes[m_at]) && m_bytes[m_at] != '>')
            ++m_at;
        return m_bytes.sliced(start, m_at - start).toByteArray().toLower();
    }

    void skipSpaces()
    {
        while (!isAtEnd() && isHtmlSpace(m_bytes[m_at]))
            ++m_at;
    }

    QByteArrayView m_bytes;
    qsizetype m_at = 0;
};

/// HTML standard, "get an XML encoding".
const char *encodingInXmlDeclaration(QByteArrayView page)
{
    const QByteArrayView start = page.first(std::min(page.size(), prescanLength));
    if (!start.startsWith("<?xml"))
        return nullptr;
    const qsizetype end = start.indexOf('>');
    if (end < 0)
        return nullptr;
    const QByteArrayView declaration = start.first(end);
    constexpr QByteArrayView word = "encoding";
    qsizetype at = declaration.indexOf(word);
    if (at < 0)
        return nullptr;
    at += word.size();
    const auto skip = [&] {
        while (at < declaration.size() && isHtmlSpace(declaration[at]))
            ++at;
        return at < declaration.size() ? declaration[at] : '\0';
    };
    if (skip() != '=')
        return nullptr;
    ++at;
    const char quote = skip();
    if (quote != '"' && quote != '\'')
        return nullptr;
    const qsizetype close = declaration.indexOf(quote, at + 1);
    return close < 0 ? nullptr : encodingOfLabel(declaration.sliced(at + 1, close - at - 1));
}

/// Null unless the text begins like HTML, XML or a template of them: other texts may quote such declarations.
const char *encodingInMarkup(QByteArrayView text)
{
    const auto *const start = std::find_if_not(text.begin(), text.end(), isHtmlSpace);
    if (start == text.end() || *start != '<')
        return nullptr;
    if (const char *const name = encodingInXmlDeclaration(text))
        return encodingOfAsciiPage(name);
    return Prescan(text).encoding();
}

bool isWrongName(const char *name, QByteArrayView bytes)
{
    return std::string_view(name) == "UTF-8" && !mayBeUtf8(bytes);
}

} // namespace

TextEncoding encodingOfPage(QByteArrayView page, QByteArrayView charset)
{
    if (const std::optional<TextEncoding> marked = markedEncoding(page))
        return *marked;
    for (const char *const name : {encodingOfLabel(charset), encodingInContentType(charset),
             Prescan(page).encoding(), encodingOfAsciiPage(encodingInXmlDeclaration(page))}) {
        if (name && !isWrongName(name, page))
            return {name};
    }
    return detectTextEncoding(page);
}

TextEncoding encodingOfPlainText(QByteArrayView bytes, QByteArrayView charset)
{
    if (const std::optional<TextEncoding> marked = markedEncoding(bytes))
        return *marked;
    if (const char *const name = encodingOfLabel(charset); name && !isWrongName(name, bytes))
        return {name};
    return detectTextEncoding(bytes, encodingInMarkup(bytes));
}
