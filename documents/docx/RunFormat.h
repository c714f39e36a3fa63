// SPDX-License-Identifier: MIT
// RunFormat is how the characters of one run look once every style has had its say; it finds the font of each
// character by its script.
// Thread: any; values.
#pragma once

#include "documents/docx/RunProperties.h"
#include "platform/styled_text/TextAttributes.h"

#include <QStringView>

struct CharacterFormat {
    FontAttributes font;
    QString language;

    bool operator==(const CharacterFormat &) const = default;
};

class RunFormat {
public:
    RunFormat() = default;
    /// properties: with all levels in them.
    explicit RunFormat(const RunProperties &properties);

    [[nodiscard]] bool isHidden() const { return m_isHidden; }
    /// Of Latin letters.
    [[nodiscard]] const CharacterFormat &ascii() const { return m_formats.ascii; }

    /// How the text begins to look, and how many code units (at least 1) go on like that. text: not empty.
    struct Stretch {
        const CharacterFormat *format;
        qsizetype length;
    };
    [[nodiscard]] Stretch stretchAt(QStringView text) const;

private:
    [[nodiscard]] const CharacterFormat &formatOf(char16_t unit) const;

    ByScript<CharacterFormat> m_formats;
    bool m_isHidden = false;
    bool m_isComplex = false;
    bool m_prefersEastAsian = false;
};
