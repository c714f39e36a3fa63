// SPDX-License-Identifier: MIT
// CssSelector parses the selectors of a rule, as far as they are made of names of elements, classes and ids.
// Matching them is left to StyleCascade.
// Thread: any; values.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

#include <array>
#include <vector>

/// The names that the selectors of a page contain, as numbers that are fast to compare.
class CssNames {
public:
    static constexpr int none = -1;
    static constexpr qsizetype maxNames = 100'000;

    /// If true, the case of classes and ids is ignored (as browsers do in pages without a doctype).
    explicit CssNames(bool ignoresCase = false)
        : m_ignoresCase(ignoresCase)
    {
    }

    int add(const QByteArray &name);
    [[nodiscard]] int numberOf(QByteArrayView name) const; ///< none if no selector contains it
    int addTag(const QByteArray &name) { return insert(name.toLower()); }
    [[nodiscard]] int numberOfTag(QByteArrayView lowerCaseName) const;
    [[nodiscard]] bool isFull() const { return m_numbers.size() >= maxNames; }

private:
    int insert(const QByteArray &name);

    QHash<QByteArray, int> m_numbers;
    bool m_ignoresCase;
};

/// The conditions on one element.
struct CssCompound {
    static constexpr size_t maxClasses = 4;

    int tag = CssNames::none; ///< none for any
    int id = CssNames::none; ///< none for any
    std::array<int, maxClasses> classes{};
    size_t classCount = 0;
    bool isChild = false; ///< of the element before; else a descendant
};

struct CssSelector {
    static constexpr size_t maxCompounds = 16;

    std::vector<CssCompound> compounds; ///< the outermost element first; not empty
    [[nodiscard]] quint32 specificity() const;
};

/// Of one page. More are never needed, and take much memory.
inline constexpr size_t maxSelectors = 20'000;

/// Selectors with attributes, pseudo-classes, pseudo-elements, siblings or more parts than the maxima above
/// are left out. Empty if the list is invalid. Stops when
/// there are more than maxSelectors, or too many names.
std::vector<CssSelector> parseSelectors(QByteArrayView list, CssNames &names);
