// SPDX-License-Identifier: MIT
#include "documents/html/StyleCascade.h"

#include "documents/html/CssText.h"
#include "documents/html/HtmlStyle.h"
#include "platform/text_encoding/AsciiBytes.h"

#include <algorithm>

namespace {

/// Comparisons of an element with a part of a selector: some 20 ns each. Pages with large frameworks of
/// styles need about one for a byte.
constexpr qint64 baseSteps = 10'000'000;
constexpr qint64 stepsPerByte = 10;

QByteArray tagName(const GumboElement &element)
{
    if (element.tag != GUMBO_TAG_UNKNOWN)
        return QByteArray(gumbo_normalized_tagname(element.tag)).toLower();
    GumboStringPiece tag = element.original_tag;
    gumbo_tag_from_original_text(&tag);
    return QByteArray(tag.data, static_cast<qsizetype>(tag.length)).toLower();
}

/// Rules win by importance, then specificity, then order; never 0.
quint64 priorityOf(bool isImportant, quint32 specificity, quint32 order)
{
    return (isImportant ? 1ULL << 63U : 0) | quint64{specificity} << 32U | (order + 1);
}

} // namespace

StyleCascade::StyleCascade(const StyleSheets &sheets, qsizetype pageLength)
    : m_sheets(sheets)
    , m_steps(baseSteps + stepsPerByte * pageLength)
{
}

HidingProperties StyleCascade::enter(const GumboElement &element)
{
    if (m_sheets.isEmpty())
        return {};
    m_path.push_back(elementOf(element));
    m_declared = {};
    m_displayPriority = 0;
    m_visibilityPriority = 0;
    const Element &self = m_path.back();
    if (self.id != CssNames::none)
        apply(m_sheets.withId(self.id));
    for (const int name : self.classes)
        apply(m_sheets.withClass(name));
    if (self.tag != CssNames::none)
        apply(m_sheets.withTag(self.tag));
    apply(m_sheets.withAnyElement());
    return m_declared;
}

void StyleCascade::leave()
{
    if (!m_sheets.isEmpty())
        m_path.pop_back();
}

StyleCascade::Element StyleCascade::elementOf(const GumboElement &element) const
{
    const CssNames &names = m_sheets.names();
    Element found;
    found.tag = names.numberOfTag(tagName(element));
    if (const GumboAttribute *id = gumbo_get_attribute(&element.attributes, "id"))
        found.id = names.numberOf(id->value);
    const GumboAttribute *classes = gumbo_get_attribute(&element.attributes, "class");
    const QByteArrayView list(classes ? classes->value : "");
    for (const char *at = list.begin(); at != list.end();) {
        const char *const end = std::find_if(at, list.end(), isHtmlSpace);
        const int name = end > at ? names.numberOf({at, end}) : CssNames::none;
        if (name != CssNames::none)
            found.classes.push_back(name);
        at = std::find_if_not(end, list.end(), isHtmlSpace);
    }
    std::sort(found.classes.begin(), found.classes.end());
    found.classes.erase(std::unique(found.classes.begin(), found.classes.end()), found.classes.end());
    return found;
}

void StyleCascade::apply(const StyleSheets::Indices &rules)
{
    for (const quint32 place : rules) {
        const StyleSheets::Rule &rule = m_sheets.rule(place);
        const HidingProperties &declared = rule.declared;
        const quint64 display = priorityOf(declared.isDisplayImportant, rule.specificity, place);
        const quint64 visibility = priorityOf(declared.isVisibilityImportant, rule.specificity, place);
        const bool setsDisplay = declared.display && display > m_displayPriority;
        const bool setsVisibility = declared.isVisible && visibility > m_visibilityPriority;
        if (--m_steps < 0)
            return;
        if ((!setsDisplay && !setsVisibility) || !doesMatch(rule.selector))
            continue;
        if (setsDisplay) {
            m_displayPriority = display;
            m_declared.display = declared.display;
            m_declared.isDisplayImportant = declared.isDisplayImportant;
        }
        if (setsVisibility) {
            m_visibilityPriority = visibility;
            m_declared.isVisible = declared.isVisible;
            m_declared.isVisibilityImportant = declared.isVisibilityImportant;
        }
    }
}

/// Climbs from the element to the root once. A bit of `wanted` is set while the compound of that number needs
/// a matching element here and all compounds behind it have one.
bool StyleCascade::doesMatch(const CssSelector &selector)
{
    const std::vector<CssCompound> &compounds = selector.compounds;
    if (!doesMatch(compounds.back(), m_path.back()))
        return false;
    if (compounds.size() == 1)
        return true;
    quint32 wanted = 1U << (compounds.size() - 2);
    for (size_t level = m_path.size() - 1; level > 0 && wanted != 0; --level) {
        const Element &ancestor = m_path[level - 1];
        quint32 stillWanted = 0;
        for (size_t i = 0; i + 1 < compounds.size(); ++i) {
            if ((wanted >> i & 1U) == 0)
                continue;
            if (--m_steps < 0)
                return false;
            if (doesMatch(compounds[i], ancestor)) {
                if (i == 0)
                    return true;
                stillWanted |= 1U << (i - 1);
            }
            if (!compounds[i + 1].isChild)
                stillWanted |= 1U << i;
        }
        wanted = stillWanted;
    }
    return false;
}

bool StyleCascade::doesMatch(const CssCompound &compound, const Element &element)
{
    const auto hasClass = [&element](int name) {
        return std::binary_search(element.classes.begin(), element.classes.end(), name);
    };
    return (compound.tag == CssNames::none || compound.tag == element.tag)
        && (compound.id == CssNames::none || compound.id == element.id)
        && std::all_of(compound.classes.begin(),
            compound.classes.begin() + static_cast<std::ptrdiff_t>(compound.classCount), hasClass);
}
