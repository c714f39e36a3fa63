// SPDX-License-Identifier: MIT
// ScriptFormats selects the format of each character by its script: documents name a font of its own for
// Latin, East Asian and complex scripts.
// Thread: any; values.
#pragma once

#include "platform/styled_text/TextAttributes.h"

#include <QString>
#include <QStringView>

#include <utility>

/// One value for each of the font categories of characters (ECMA-376, w:rFonts).
template <typename Value>
struct ByScript {
    Value ascii{};
    Value highAnsi{};
    Value eastAsian{};
    Value complex{};
};

struct CharacterFormat {
    FontAttributes font;
    QString language;

    bool operator==(const CharacterFormat &) const = default;
};

/// The formats of the characters in a run, with all levels applied.
class ScriptFormats {
public:
    ScriptFormats() = default;
    /// isComplex: whether all characters are of a complex script.  prefersEastAsian: whether characters that
    /// several scripts share are East Asian.
    explicit ScriptFormats(
        ByScript<CharacterFormat> formats, bool isComplex = false, bool prefersEastAsian = false)
        : m_formats(std::move(formats))
        , m_isComplex(isComplex)
        , m_prefersEastAsian(prefersEastAsian)
    {
    }

    /// The format of ASCII characters.
    [[nodiscard]] const CharacterFormat &ascii() const { return m_formats.ascii; }

    /// The format at the start of a text, and the number of code units (at least 1) that it applies to. text:
    /// not empty.
    struct Stretch {
        const CharacterFormat *format;
        qsizetype length;
    };
    [[nodiscard]] Stretch stretchAt(QStringView text) const;

private:
    [[nodiscard]] const CharacterFormat &formatOf(char16_t unit) const;

    ByScript<CharacterFormat> m_formats;
    bool m_isComplex = false;
    bool m_prefersEastAsian = false;
};
