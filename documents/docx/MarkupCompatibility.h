// SPDX-License-Identifier: MIT
// MarkupCompatibility decides which elements the reader of a Word document sees. Parsing is left to
// XmlReader. Thread: one at a time.  Owner: readOfficePart().
#pragma once

#include "documents/package/XmlReader.h"

#include <QHash>

#include <vector>

/// Implements the rules of ECMA-376 for markup of other versions: selects one of several alternatives, and
/// skips elements that may be ignored and are not supported.
class MarkupCompatibility final : public XmlFilter {
public:
    explicit MarkupCompatibility(XmlNamespaces &namespaces)
        : m_namespaces(namespaces)
    {
    }

    [[nodiscard]] Treatment enter(
        int depth, const char *qualifiedName, const char *const *attributes) override;
    void leave(int depth) override;

private:
    struct Alternatives {
        int depth; // of mc:AlternateContent
        bool isChosen;
    };
    struct Permission {
        int depth;
        XmlNamespaces::Index uri;
        XmlTag tag; // of an element whose content is kept; 0 if elements may be ignored
    };

    void readPermissions(int depth, const char *const *attributes);
    void addPermission(int depth, XmlNamespaces::Index uri, XmlTag tag);
    [[nodiscard]] bool isPermitted(XmlNamespaces::Index uri, XmlTag tag) const;
    [[nodiscard]] Treatment treatmentOfAlternative(int depth, XmlTag tag, const char *const *attributes);
    [[nodiscard]] bool isSupported(const char *const *attributes);

    XmlNamespaces &m_namespaces;
    std::vector<Alternatives> m_alternatives; // innermost last
    std::vector<Permission> m_permissions; // innermost last
    QHash<QPair<XmlNamespaces::Index, XmlTag>, int> m_permitted; // how often
};
