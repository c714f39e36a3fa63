// SPDX-License-Identifier: MIT
#include "documents/html/CssSelector.h"

#include "documents/html/CssText.h"
#include "platform/text_encoding/AsciiBytes.h"

#include <QString>

#include <algorithm>
#include <cctype>
#include <optional>

namespace {

bool isNameByte(char byte)
{
    return isAbove127(byte) || byte == '-' || byte == '_' || byte == '\\'
        || std::isalnum(static_cast<unsigned char>(byte));
}

class SelectorParser {
public:
    SelectorParser(QByteArrayView list, CssNames &names)
        : m_text(list)
        , m_names(names)
    {
    }

    std::vector<CssSelector> parse()
    {
        std::vector<CssSelector> selectors;
        while (true) {
            CssSelector selector;
            m_isSupported = true;
            if (!readSelector(selector))
                return {};
            if (m_isSupported)
                selectors.push_back(std::move(selector));
            if (m_at == m_text.size() || selectors.size() > maxSelectors || m_names.isFull())
                return selectors;
            ++m_at; // the comma
        }
    }

private:
    [[nodiscard]] char next() const { return m_at < m_text.size() ? m_text[m_at] : '\0'; }

    bool skipSpace()
    {
        const qsizetype start = m_at;
        while (m_at < m_text.size() && isHtmlSpace(m_text[m_at]))
            ++m_at;
        return m_at > start;
    }

    /// Up to a comma or the end. False if the selector is invalid.
    bool readSelector(CssSelector &selector)
    {
        bool isChild = false;
        skipSpace();
        while (true) {
            CssCompound compound;
            compound.isChild = isChild;
            if (!readCompound(compound))
                return false;
            if (selector.compounds.size() == CssSelector::maxCompounds)
                m_isSupported = false;
            else
                selector.compounds.push_back(compound);
            const bool isSpace = skipSpace();
            if (m_at == m_text.size() || next() == ',')
                return true;
            const char combinator = next();
            isChild = combinator == '>';
            if (isChild || combinator == '+' || combinator == '~') {
                m_isSupported = m_isSupported && isChild;
                ++m_at;
                skipSpace();
            } else if (!isSpace) {
                return false;
            }
        }
    }

    bool readCompound(CssCompound &compound)
    {
        const qsizetype start = m_at;
        if (next() == '*')
            ++m_at;
        else if (isNameByte(next())) {
            const std::optional<QByteArray> name = readName();
            if (!name)
                return false;
            compound.tag = m_names.addTag(*name);
        }
        while (m_at < m_text.size()) {
            const char mark = next();
            if (mark == '.' || mark == '#') {
                ++m_at;
                const std::optional<QByteArray> name = readName();
                if (!name)
                    return false;
                addCondition(compound, mark, m_names.add(*name));
            } else if (mark == ':' || mark == '[' || mark == '&' || mark == '|') {
                skipUnsupported(mark);
            } else {
                break;
            }
        }
        return m_at > start;
    }

    void addCondition(CssCompound &compound, char mark, int name)
    {
        if (mark == '#') {
            m_isSupported = m_isSupported && compound.id == CssNames::none;
            compound.id = name;
        } else if (compound.classCount == CssCompound::maxClasses) {
            m_isSupported = false;
        } else {
            compound.classes[compound.classCount++] = name;
        }
    }

    void skipUnsupported(char mark)
    {
        m_isSupported = false;
        ++m_at;
        if (mark == '[') {
            skipBlock("]");
            return;
        }
        while (next() == ':' || next() == '*')
            ++m_at;
        while (isNameByte(next()))
            ++m_at;
        if (mark == ':' && next() == '(') {
            ++m_at;
            skipBlock(")");
        }
    }

    void skipBlock(QByteArrayView closer)
    {
        m_at = std::min(findInCss(m_text, m_at, closer) + 1, m_text.size());
    }

    /// Absent if there is no name here.
    std::optional<QByteArray> readName()
    {
        QByteArray name;
        const qsizetype first = m_at + (next() == '-' ? 1 : 0);
        if (first < m_text.size() && std::isdigit(static_cast<unsigned char>(m_text[first])))
            return std::nullopt;
        while (isNameByte(next())) {
            if (next() == '\\') {
                ++m_at;
                if (!readEscape(name))
                    return std::nullopt;
            } else {
                name.append(m_text[m_at++]);
            }
        }
        return name.isEmpty() ? std::nullopt : std::optional(name);
    }

    bool readEscape(QByteArray &name)
    {
        constexpr qsizetype maxDigits = 6;
        const QByteArrayView rest = m_text.sliced(m_at);
        if (rest.isEmpty() || rest[0] == '\n')
            return false;
        qsizetype digits = 0;
        while (digits < std::min(rest.size(), maxDigits)
            && std::isxdigit(static_cast<unsigned char>(rest[digits])))
            ++digits;
        if (digits == 0) {
            name.append(rest[0]); // of a longer character, the other bytes are parts of names
            ++m_at;
            return true;
        }
        const uint code = rest.first(digits).toByteArray().toUInt(nullptr, 16);
        const bool isCharacter = code != 0 && code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code);
        name.append(
            QString::fromUcs4(std::array{static_cast<char32_t>(isCharacter ? code : 0xFFFD)}.data(), 1)
                .toUtf8());
        m_at += digits;
        if (isHtmlSpace(next()))
            ++m_at;
        return true;
    }

    const QByteArrayView m_text;
    CssNames &m_names;
    qsizetype m_at = 0;
    bool m_isSupported = true; // the selector that is being read
};

} // namespace

int CssNames::add(const QByteArray &name)
{
    return insert(m_ignoresCase ? name.toLower() : name);
}

int CssNames::insert(const QByteArray &name)
{
    const auto found = m_numbers.constFind(name);
    if (found != m_numbers.cend())
        return *found;
    if (isFull())
        return 0; // the page is refused
    const int number = static_cast<int>(m_numbers.size());
    m_numbers.insert(name, number);
    return number;
}

int CssNames::numberOf(QByteArrayView name) const
{
    if (m_ignoresCase)
        return m_numbers.value(name.toByteArray().toLower(), none);
    return m_numbers.value(QByteArray::fromRawData(name.data(), name.size()), none);
}

int CssNames::numberOfTag(QByteArrayView lowerCaseName) const
{
    return m_numbers.value(QByteArray::fromRawData(lowerCaseName.data(), lowerCaseName.size()), none);
}

quint32 CssSelector::specificity() const
{
    quint32 ids = 0;
    quint32 classes = 0;
    quint32 tags = 0;
    for (const CssCompound &compound : compounds) {
        ids += compound.id == CssNames::none ? 0 : 1;
        classes += static_cast<quint32>(compound.classCount);
        tags += compound.tag == CssNames::none ? 0 : 1;
    }
    return ids << 16U | classes << 8U | tags; // each fits in a byte
}

std::vector<CssSelector> parseSelectors(QByteArrayView list, CssNames &names)
{
    const QByteArray text = removeCssComments(list);
    return SelectorParser(text, names).parse();
}
