// SPDX-License-Identifier: MIT
#include "documents/html/StyleSheets.h"

#include "documents/html/CssText.h"
#include "documents/html/HtmlStyle.h"
#include "platform/text_encoding/AsciiBytes.h"

#include <QByteArrayList>

#include <cstring>

namespace {

/// Fast: most pages have none, and long pages are long to walk.
bool mayHaveElement(QByteArrayView page, QByteArrayView tag)
{
    for (const char *at = page.begin(); at != page.end(); ++at) {
        at = static_cast<const char *>(std::memchr(at, '<', static_cast<size_t>(page.end() - at)));
        if (!at)
            return false;
        if (startsWithWord({at, page.end()}, tag))
            return true;
    }
    return false;
}

bool isStyleElement(const GumboElement &element)
{
    return element.tag == GUMBO_TAG_STYLE || isElement(element, GUMBO_NAMESPACE_SVG, "style");
}

/// Whether the sheet of a style or link element applies.
bool isForScreens(const GumboElement &element)
{
    const GumboAttribute *type = gumbo_get_attribute(&element.attributes, "type");
    const GumboAttribute *media = gumbo_get_attribute(&element.attributes, "media");
    return (!type || *type->value == '\0' || qstricmp(type->value, "text/css") == 0)
        && (!media || appliesToScreen(media->value));
}

/// Scripting counts as enabled, and templates are not part of the page.
bool areSheetsInsideRead(const GumboNode &node)
{
    return node.type == GUMBO_NODE_ELEMENT && node.v.element.tag != GUMBO_TAG_NOSCRIPT;
}

/// The reference of a link element to a sheet; null for other elements.
const char *linkToSheet(const GumboElement &element)
{
    const GumboAttribute *relation = gumbo_get_attribute(&element.attributes, "rel");
    const GumboAttribute *reference = gumbo_get_attribute(&element.attributes, "href");
    if (element.tag != GUMBO_TAG_LINK || !relation || !reference)
        return nullptr;
    const QByteArrayList words = QByteArray(relation->value).toLower().simplified().split(' ');
    return words.contains("stylesheet") && !words.contains("alternate") ? reference->value : nullptr;
}

QByteArray textIn(const GumboElement &element)
{
    QByteArray text;
    for (unsigned int i = 0; i < element.children.length; ++i) {
        const auto &child = *static_cast<const GumboNode *>(element.children.data[i]);
        if (child.type == GUMBO_NODE_TEXT || child.type == GUMBO_NODE_CDATA)
            text.append(child.v.text.text);
    }
    return text;
}

/// The style sheets of a page, in their order.
std::vector<QByteArray> sheetsOf(const GumboNode &document, const LinkedSheet &linkedSheet)
{
    struct Level {
        const GumboVector *children;
        unsigned int next;
    };
    std::vector<QByteArray> sheets;
    std::vector<Level> path{{&document.v.document.children, 0}};
    while (!path.empty()) {
        Level &level = path.back();
        if (level.next == level.children->length) {
            path.pop_back();
            continue;
        }
        const auto &node = *static_cast<const GumboNode *>(level.children->data[level.next++]);
        if (!areSheetsInsideRead(node))
            continue;
        const GumboElement &element = node.v.element;
        const char *const link = linkedSheet ? linkToSheet(element) : nullptr;
        if ((link || isStyleElement(element)) && isForScreens(element))
            sheets.push_back(link ? linkedSheet(link) : textIn(element));
        else
            path.push_back({&element.children, 0});
    }
    return sheets;
}

} // namespace

Result<StyleSheets, DocumentError::Cause> StyleSheets::ofPage(
    QByteArrayView page, const GumboNode &document, const LinkedSheet &linkedSheet)
{
    StyleSheets sheets;
    if (!mayHaveElement(page, "<style") && !(linkedSheet && mayHaveElement(page, "<link")))
        return sheets;
    sheets.m_names = CssNames(document.v.document.doc_type_quirks_mode == GUMBO_DOCTYPE_QUIRKS);
    for (const QByteArray &sheet : sheetsOf(document, linkedSheet)) {
        sheets.readSheet(sheet);
        if (sheets.areTooMany())
            return DocumentError::Cause::TooComplex;
    }
    return sheets;
}

const StyleSheets::Indices &StyleSheets::rulesIn(const Index &index, int name)
{
    static const Indices none;
    const auto found = index.find(name);
    return found == index.end() ? none : found->second;
}

void StyleSheets::readSheet(QByteArrayView sheet)
{
    readStyleRules(sheet, [this](QByteArrayView selectors, QByteArrayView block) {
        if (areTooMany())
            return;
        const HtmlStyleAttribute declared = parseStyleAttribute(block);
        if (!declared.display && !declared.isVisible)
            return;
        for (CssSelector &selector : parseSelectors(selectors, m_names))
            add(std::move(selector), declared);
    });
}

void StyleSheets::add(CssSelector selector, const HidingProperties &declared)
{
    const auto place = static_cast<quint32>(m_rules.size());
    const CssCompound &last = selector.compounds.back();
    if (last.id != CssNames::none)
        m_byId[last.id].push_back(place);
    else if (last.classCount > 0)
        m_byClass[last.classes[0]].push_back(place);
    else if (last.tag != CssNames::none)
        m_byTag[last.tag].push_back(place);
    else
        m_others.push_back(place);
    const quint32 specificity = selector.specificity();
    m_rules.push_back({std::move(selector), specificity, declared});
}
