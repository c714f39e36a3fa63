// SPDX-License-Identifier: MIT
// StyleSheets are the rules in the style elements of a page that set display or visibility, the properties
// that hide text, and in the sheets to which its link elements refer if the caller has them. Which rules
// apply to an element is left to StyleCascade.
// Thread: any; a value.
#pragma once

#include "documents/DocumentError.h"
#include "documents/html/CssSelector.h"
#include "documents/html/HtmlStyleAttribute.h"
#include "platform/system/Result.h"

#include <gumbo.h>

#include <QByteArray>
#include <QByteArrayView>

#include <functional>
#include <unordered_map>
#include <vector>

/// The style sheet to which a page refers; empty where there is none. reference: as the page has it.
using LinkedSheet = std::function<QByteArray(const QByteArray &reference)>;

class StyleSheets {
public:
    /// Fails as TooComplex if there are too many selectors or names in them. Takes time proportional to the
    /// page and the linked sheets, and nearly none if no such element is in it. page: UTF-8. document: a node
    /// of type GUMBO_NODE_DOCUMENT.
    static Result<StyleSheets, DocumentError::Cause> ofPage(
        QByteArrayView page, const GumboNode &document, const LinkedSheet &linkedSheet);

    struct Rule {
        CssSelector selector;
        quint32 specificity;
        HidingProperties declared;
    };
    using Indices = std::vector<quint32>; ///< of rules, in their order

    [[nodiscard]] bool isEmpty() const { return m_rules.empty(); }
    [[nodiscard]] const CssNames &names() const { return m_names; }
    [[nodiscard]] const Rule &rule(quint32 index) const { return m_rules[index]; }

    // The rules whose last compound asks for an id, else a class, else a tag, else for nothing.
    [[nodiscard]] const Indices &withId(int name) const { return rulesIn(m_byId, name); }
    [[nodiscard]] const Indices &withClass(int name) const { return rulesIn(m_byClass, name); }
    [[nodiscard]] const Indices &withTag(int name) const { return rulesIn(m_byTag, name); }
    [[nodiscard]] const Indices &withAnyElement() const { return m_others; }

private:
    using Index = std::unordered_map<int, Indices>;

    [[nodiscard]] static const Indices &rulesIn(const Index &index, int name);
    [[nodiscard]] bool areTooMany() const { return m_rules.size() > maxSelectors || m_names.isFull(); }
    void readSheet(QByteArrayView sheet);
    void add(CssSelector selector, const HidingProperties &declared);

    CssNames m_names;
    std::vector<Rule> m_rules;
    Index m_byId;
    Index m_byClass;
    Index m_byTag;
    Indices m_others;
};
