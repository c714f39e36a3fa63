// SPDX-License-Identifier: MIT
#include "documents/odt/FormulaReader.h"

void FormulaReader::startElement(const XmlElement &element)
{
    ++m_depth;
    if (m_skippedDepth > 0)
        return;
    const OdfName name = odfName(element);
    if (m_depth == 1 && name != "math:math"_odf) {
        m_skippedDepth = m_depth;
        return;
    }
    if (isSetApart(name))
        m_stories.requireSpace();
    switch (name) {
    case "math:mfrac"_odf:
        m_fractions.push_back(m_depth);
        break;
    case "math:mi"_odf:
    case "math:mn"_odf:
    case "math:mo"_odf:
    case "math:ms"_odf:
    case "math:mtext"_odf:
        m_tokenDepth = m_depth;
        break;
    case "math:annotation"_odf:
    case "math:annotation-xml"_odf:
        m_skippedDepth = m_depth;
        break;
    default:
        break;
    }
}

void FormulaReader::endElement(XmlName name)
{
    if (m_skippedDepth == 0) {
        if (!m_fractions.empty() && m_fractions.back() == m_depth)
            m_fractions.pop_back();
        if (isSetApart(odfName(name)))
            m_stories.requireSpace();
        if (m_tokenDepth == m_depth)
            m_tokenDepth = 0;
    } else if (m_skippedDepth == m_depth) {
        m_skippedDepth = 0;
    }
    --m_depth;
}

void FormulaReader::characters(QByteArrayView text)
{
    if (m_skippedDepth == 0 && m_tokenDepth > 0)
        m_stories.append(QString::fromUtf8(text.trimmed()));
}

bool FormulaReader::isSetApart(OdfName name) const
{
    return name == "math:mtd"_odf || (!m_fractions.empty() && m_fractions.back() == m_depth - 1);
}
