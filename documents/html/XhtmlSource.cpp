// SPDX-License-Identifier: MIT
#include "documents/html/XhtmlSource.h"

#include "platform/text_encoding/AsciiBytes.h"

#include <algorithm>
#include <array>

namespace {

/// The elements of HTML that have no end tags.
bool isVoid(QByteArrayView name)
{
    static constexpr std::array<QByteArrayView, 14> names{"area", "base", "br", "col", "embed", "hr", "img",
        "input", "link", "meta", "param", "source", "track", "wbr"};
    return std::ranges::find(names, name) != names.end();
}

/// Elements whose content a parser of HTML does not search for character references.
bool isRawText(QByteArrayView name)
{
    return name == "style" || name == "script";
}

class Rewriter {
public:
    explicit Rewriter(QByteArrayView page)
        : m_page(page)
    {
        m_html.reserve(page.size() + page.size() / 8);
    }

    QByteArray rewrite()
    {
        while (m_at < m_page.size()) {
            const qsizetype tag = m_page.indexOf('<', m_at);
            copyTo(tag < 0 ? m_page.size() : tag);
            if (tag >= 0)
                rewriteMarkup();
        }
        return m_html;
    }

private:
    [[nodiscard]] bool isAt(QByteArrayView what) const { return m_page.sliced(m_at).startsWith(what); }

    void copyTo(qsizetype end)
    {
        m_html.append(m_page.sliced(m_at, end - m_at));
        m_at = end;
    }

    /// The position behind a mark; the end of the page if it is missing.
    [[nodiscard]] qsizetype behind(QByteArrayView mark, qsizetype from) const
    {
        const qsizetype at = m_page.indexOf(mark, from);
        return at < 0 ? m_page.size() : at + mark.size();
    }

    void rewriteMarkup()
    {
        if (isAt("<!--"))
            copyTo(behind("-->", m_at + 4));
        else if (isAt("<?"))
            m_at = behind("?>", m_at);
        else if (isAt("<![CDATA["))
            copySection();
        else if (isAt("<!"))
            copyTo(behind(">", m_at));
        else if (isAt("</"))
            copyEndTag();
        else
            copyStartTag();
    }

    void copySection()
    {
        const qsizetype start = m_at + 9;
        const qsizetype end = m_page.indexOf("]]>", start);
        const QByteArrayView text = m_page.sliced(start, (end < 0 ? m_page.size() : end) - start);
        for (const char byte : text) {
            if (byte == '<' && !m_isRawText)
                m_html.append("&lt;");
            else if (byte == '&' && !m_isRawText)
                m_html.append("&amp;");
            else
                m_html.append(byte);
        }
        m_at = end < 0 ? m_page.size() : end + 3;
    }

    [[nodiscard]] QByteArrayView nameAt(qsizetype start) const
    {
        const QByteArrayView rest = m_page.sliced(start);
        const auto *const end = std::find_if(rest.begin(), rest.end(),
            [](char byte) { return isHtmlSpace(byte) || byte == '/' || byte == '>' || byte == '<'; });
        return rest.first(end - rest.begin());
    }

    /// Behind the tag, whose attributes may contain its end mark. A tag without end stops before the next
    /// one.
    [[nodiscard]] qsizetype endOfTag() const
    {
        char quote = '\0';
        for (qsizetype at = m_at + 1; at < m_page.size(); ++at) {
            const char byte = m_page[at];
            if (quote != '\0')
                quote = byte == quote ? '\0' : quote;
            else if (byte == '"' || byte == '\'')
                quote = byte;
            else if (byte == '>')
                return at + 1;
            else if (byte == '<')
                return at;
        }
        return m_page.size();
    }

    void copyEndTag()
    {
        const QByteArrayView name = nameAt(m_at + 2);
        const qsizetype end = endOfTag();
        m_isRawText = m_isRawText && !isRawText(name);
        if (isVoid(name)) // a second line break, to a parser of HTML
            m_at = end;
        else
            copyTo(end);
    }

    void copyStartTag()
    {
        const QByteArrayView name = nameAt(m_at + 1);
        const qsizetype end = endOfTag();
        const bool isEmpty = m_page.sliced(m_at, end - m_at).endsWith("/>");
        if (!isEmpty || isVoid(name) || name.isEmpty()) {
            m_isRawText = m_isRawText || isRawText(name);
            return copyTo(end);
        }
        copyTo(end - 2);
        m_at = end;
        m_html.append("></");
        m_html.append(name);
        m_html.append('>');
    }

    const QByteArrayView m_page;
    qsizetype m_at = 0;
    bool m_isRawText = false; // inside of a style or script element
    QByteArray m_html;
};

} // namespace

QByteArray htmlOfXhtml(QByteArrayView page)
{
    return Rewriter(page).rewrite();
}
