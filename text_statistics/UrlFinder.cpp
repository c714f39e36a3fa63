// SPDX-License-Identifier: MIT
#include "text_statistics/UrlFinder.h"

#include <algorithm>

namespace {

bool endsUrl(QChar unit)
{
    return unit.isSpace() || unit == u'<' || unit == u'>' || unit == u'"' || unit == u'\u201C'
        || unit == u'\u201D' || unit == u'\u00AB' || unit == u'\u00BB';
}

bool isOfScheme(QChar unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || (unit >= u'0' && unit <= u'9')
        || unit == u'+' || unit == u'-' || unit == u'.';
}

bool isPunctuation(QChar unit)
{
    return QStringView(u".,;:!?)]}'*_\u2019\u2026").contains(unit);
}

} // namespace

std::optional<UrlFinder::Url> UrlFinder::urlIn(qsizetype start, qsizetype end) const
{
    const QStringView token = m_text.sliced(start, end - start);
    qsizetype from = token.indexOf(u"://");
    if (from > 0) {
        while (from > 0 && isOfScheme(token[from - 1]))
            --from;
    } else {
        from = std::max(token.indexOf(u"www."), token.indexOf(u"mailto:"));
        if (from < 0 || (from > 0 && token[from - 1].isLetterOrNumber()))
            return std::nullopt;
    }
    qsizetype to = token.size();
    while (to > from && isPunctuation(token[to - 1]))
        --to;
    return to > from ? std::optional(Url{start + from, start + to}) : std::nullopt;
}

std::optional<UrlFinder::Url> UrlFinder::atOrAfter(qsizetype position)
{
    while (!m_found || m_found->end <= position) {
        m_found.reset();
        while (m_at < m_text.size() && endsUrl(m_text[m_at]))
            ++m_at;
        if (m_at >= m_text.size())
            return std::nullopt;
        const qsizetype start = m_at;
        while (m_at < m_text.size() && !endsUrl(m_text[m_at]))
            ++m_at;
        m_found = urlIn(start, m_at);
    }
    return m_found;
}
