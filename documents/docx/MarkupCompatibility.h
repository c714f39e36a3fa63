// SPDX-License-Identifier: MIT
// MarkupCompatibility decides which elements of a part its reader sees, by the rules of ECMA-376 for markup
// of other versions: of alternatives one, and nothing that may be ignored and is not understood.
// Thread: one at a time.  Owner: XmlReader.
#pragma once

#include "documents/docx/XmlNamespaces.h"

#include <vector>

class MarkupCompatibility {
public:
    enum class Fate {
        Seen,
        ReplacedByContent,
        LeftOut, ///< with all that is in it; nothing in it may be asked about
    };

    explicit MarkupCompatibility(XmlNamespaces &namespaces)
        : m_namespaces(namespaces)
    {
    }

    /// What becomes of an element whose namespaces are entered. attributes: pairs of name and value, then
    /// null.
    [[nodiscard]] Fate enter(int depth, const char *qualifiedName, const char *const *attributes);
    /// For every element that was not left out.
    void leave(int depth);

private:
    struct Alternatives {
        int depth; // of mc:AlternateContent
        bool isChosen;
    };
    struct Permission {
        int depth;
        XmlNamespaces::Index uri;
        XmlTag tag; // of an element whose content stays; 0 where elements may be ignored
    };

    void takePermissions(int depth, const char *const *attributes);
    void permit(int depth, XmlNamespaces::Index uri, XmlTag tag);
    [[nodiscard]] bool isPermitted(XmlNamespaces::Index uri, XmlTag tag) const;
    [[nodiscard]] Fate fateOfAlternative(int depth, XmlTag tag, const char *const *attributes);
    [[nodiscard]] bool isUnderstood(const char *const *attributes);

    XmlNamespaces &m_namespaces;
    std::vector<Alternatives> m_alternatives; // innermost last
    std::vector<Permission> m_permissions; // innermost last
    QHash<QPair<XmlNamespaces::Index, XmlTag>, int> m_permitted; // how often
};
