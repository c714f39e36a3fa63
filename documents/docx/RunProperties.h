// SPDX-License-Identifier: MIT
// RunProperties are what a style or a run says of its characters (ECMA-376, w:rPr), as far as text and layout
// need it; what it leaves open, others decide. CharacterCascade puts the levels together.
// Thread: any; values.
#pragma once

#include "documents/docx/Theme.h"
#include "documents/docx/XmlReader.h"

#include <QString>

#include <optional>

enum class VerticalAlignment { Baseline, Superscript, Subscript };

/// One value for each of the kinds that characters fall into by their scripts.
template <typename Value>
struct ByScript {
    Value ascii{};
    Value highAnsi{};
    Value eastAsian{};
    Value complex{};
};

struct RunProperties {
    ByScript<QString> fonts; ///< empty: left open
    std::optional<double> size; ///< points
    std::optional<double> complexSize;
    std::optional<bool> bold;
    std::optional<bool> italic;
    std::optional<bool> complexBold;
    std::optional<bool> complexItalic;
    std::optional<bool> hidden;
    std::optional<double> tracking; ///< points
    std::optional<double> raised; ///< points
    std::optional<VerticalAlignment> verticalAlignment;
    std::optional<bool> isComplex; ///< of a complex script whatever its characters are
    std::optional<bool> prefersEastAsian; ///< in what several scripts share
    QString language;
    QString eastAsianLanguage;
    QString complexLanguage;
    QByteArray style; ///< the identifier of a character style
    bool isRemoved = false; ///< of a paragraph's mark: deleted or moved elsewhere

    /// Takes in one child of w:rPr; others than Word's are left alone.
    void take(const XmlElement &child, const Theme &theme);

    /// What the other properties say, replaces what these say.
    void overlay(const RunProperties &other);

    [[nodiscard]] bool isHidden() const { return hidden.value_or(false); }
};

/// Puts together document defaults, table, paragraph and character style: a toggle (bold, italic, hidden) is
/// on where the defaults or an odd number of the styles turn it on (ECMA-376, toggle properties). Direct
/// formatting overlays the result.
class CharacterCascade {
public:
    explicit CharacterCascade(const RunProperties &defaults)
        : m_properties(defaults)
    {
    }

    void addStyle(const RunProperties &style);
    [[nodiscard]] const RunProperties &properties() const { return m_properties; }

private:
    struct Toggle {
        bool byStyles = false;
        bool byDefaults = false;
    };

    RunProperties m_properties;
    bool m_isStarted = false;
    Toggle m_toggles[5];
};
