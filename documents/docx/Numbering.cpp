// SPDX-License-Identifier: MIT
#include "documents/docx/Numbering.h"

#include <optional>

class NumberingReader final : public XmlHandler {
public:
    explicit NumberingReader(Numbering &numbering)
        : m_numbering(numbering)
    {
    }

    void startElement(const XmlElement &element) override
    {
        if (!isWord(element))
            return;
        switch (element.tag()) {
        case "abstractNum"_tag:
            m_abstractList = integerOf(element.attribute("abstractNumId"_tag));
            break;
        case "num"_tag:
            m_list = integerOf(element.attribute("numId"_tag));
            break;
        case "abstractNumId"_tag:
            if (const auto abstractList = integerOf(valueOf(element)); m_list && abstractList)
                m_numbering.m_abstractLists.insert(*m_list, *abstractList);
            break;
        case "numStyleLink"_tag:
            if (m_abstractList)
                m_numbering.m_namedLists.insert(*m_abstractList, valueOf(element).value_or("").toByteArray());
            break;
        case "styleLink"_tag:
            if (m_abstractList)
                m_numbering.m_listOfStyle.insert(
                    valueOf(element).value_or("").toByteArray(), *m_abstractList);
            break;
        case "lvl"_tag:
            m_level = integerOf(element.attribute("ilvl"_tag));
            m_properties = {};
            break;
        case "pPr"_tag:
            m_isInProperties = true;
            break;
        default:
            if (m_isInProperties)
                m_properties.read(element);
            break;
        }
    }

    void endElement(XmlName name) override
    {
        if (name == wordName("abstractNum"_tag))
            m_abstractList.reset();
        else if (name == wordName("num"_tag))
            m_list.reset();
        else if (name == wordName("pPr"_tag))
            m_isInProperties = false;
        else if (name == wordName("lvl"_tag))
            finishLevel();
    }

private:
    void finishLevel()
    {
        if (!m_level)
            return;
        if (m_list)
            m_numbering.m_overrides.insert({*m_list, *m_level}, m_properties);
        else if (m_abstractList)
            m_numbering.m_definitions.insert({*m_abstractList, *m_level}, m_properties);
    }

    Numbering &m_numbering;
    std::optional<int> m_abstractList;
    std::optional<int> m_list;
    std::optional<int> m_level;
    bool m_isInProperties = false;
    ParagraphProperties m_properties;
};

Result<Numbering, DocumentError::Cause> Numbering::read(const ZipPackage &package, const QByteArray &partName)
{
    Numbering numbering;
    NumberingReader reader(numbering);
    if (const std::optional<DocumentError::Cause> failure = readOfficePart(package, partName, reader))
        return *failure;
    return numbering;
}

const ParagraphProperties *Numbering::levelOf(int list, int level) const
{
    const auto overridden = m_overrides.constFind({list, level});
    if (overridden != m_overrides.cend())
        return &*overridden;
    const auto abstractList = m_abstractLists.constFind(list);
    if (abstractList == m_abstractLists.cend())
        return nullptr;
    int defining = *abstractList;
    const auto named = m_namedLists.constFind(defining);
    if (named != m_namedLists.cend())
        defining = m_listOfStyle.value(*named, defining);
    const auto found = m_definitions.constFind({defining, level});
    return found == m_definitions.cend() ? nullptr : &*found;
}
