// SPDX-License-Identifier: MIT
// StandardPage is the size of a page by which texts are ordered and paid: so many characters, including white
// space, or so many words, whatever the paper.
// Thread: any; a value.
#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <optional>

struct StandardPage {
    enum class Unit { Characters, Words };
    static constexpr qint64 maxSize = 100'000;

    qint64 size = 1800; ///< 1 to maxSize
    Unit unit = Unit::Characters;

    /// As users type it and as it is stored: "1800 characters", "250 words".
    [[nodiscard]] QString text() const;
    /// From such a text; "1800" alone means characters. Absent for any other text.
    static std::optional<StandardPage> fromText(QStringView text);

    bool operator==(const StandardPage &) const = default;
};

/// Those that are in use: in Germany (1,500 and 1,800), Scandinavia (2,400) and English-speaking countries.
inline constexpr std::array<StandardPage, 5> offeredStandardPages{{{1500, StandardPage::Unit::Characters},
    {1800, StandardPage::Unit::Characters}, {2400, StandardPage::Unit::Characters},
    {250, StandardPage::Unit::Words}, {300, StandardPage::Unit::Words}}};
