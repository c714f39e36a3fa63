// SPDX-License-Identifier: MIT
#include "documents/docx/FormulaParts.h"

bool FormulaParts::startElement(XmlTag tag, int depth)
{
    if (tag == "mr"_tag || tag == "eqArr"_tag) {
        m_rows.push_back(depth);
        return false;
    }
    return standsApart(tag, depth);
}

bool FormulaParts::endElement(XmlTag tag, int depth)
{
    if (!m_rows.empty() && m_rows.back() == depth) {
        m_rows.pop_back();
        return false;
    }
    return standsApart(tag, depth);
}

bool FormulaParts::standsApart(XmlTag tag, int depth) const
{
    const bool isCell = tag == "e"_tag && !m_rows.empty() && m_rows.back() == depth - 1;
    return isCell || tag == "num"_tag || tag == "den"_tag;
}
