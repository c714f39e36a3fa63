// SPDX-License-Identifier: MIT
// RunProperties are the character properties that a style or a run sets (ECMA-376, w:rPr), as far as text and
// layout need them. CharacterCascade combines the levels; RunFormat is the result.
// Thread: any; values.
#pragma once

#include "documents/docx/OfficeXml.h"
#include "documents/docx/Theme.h"
#include "documents/package/ScriptFormats.h"

#include <QString>

#include <optional>
#include <utility>

enum class VerticalAlignment { Baseline, Superscript, Subscript };

struct RunProperties {
    ByScript<QString> fonts; ///< empty if not set
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
    std::optional<bool> isComplex; ///< treats all characters as a complex script
    std::optional<bool> prefersEastAsian; ///< for characters that several scripts share
    QString language;
    QString eastAsianLanguage;
    QString complexLanguage;
    QByteArray style; ///< the identifier of a character style
    bool isRemoved = false; ///< of a paragraph mark: deleted or moved

    /// Sets the property of a child of w:rPr. Ignores elements outside of Word's namespace.
    void read(const XmlElement &child, const Theme &theme);

    /// Replaces the properties that the other ones set.
    void overlay(const RunProperties &other);

    [[nodiscard]] bool isHidden() const { return hidden.value_or(false); }
};

/// Combines document defaults, table, paragraph and character style. A toggle (bold, italic, hidden) is on if
/// the defaults or an odd number of styles turn it on (ECMA-376, toggle properties). Direct formatting is
/// applied to the result with overlay().
class CharacterCascade {
public:
    explicit CharacterCascade(RunProperties defaults)
        : m_properties(std::move(defaults))
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

/// The format of the characters in a run, with all levels applied.
class RunFormat : public ScriptFormats {
public:
    RunFormat() = default;
    /// properties: with all levels applied.
    explicit RunFormat(const RunProperties &properties);

    [[nodiscard]] bool isHidden() const { return m_isHidden; }

private:
    bool m_isHidden = false;
};
