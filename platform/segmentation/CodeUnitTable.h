// SPDX-License-Identifier: MIT
// CodeUnitTable remembers a property of UTF-16 code units that is slow to find out. It finds it out for 256
// neighbours at once, when one of them is first asked for.
// Thread: one at a time.  Owner: the code that asks; at most 65,536 values.
#pragma once

#include <array>
#include <cstddef>
#include <memory>

template <typename Value>
class CodeUnitTable {
public:
    explicit CodeUnitTable(Value (*valueOf)(char16_t unit))
        : m_valueOf(valueOf)
    {
    }

    [[nodiscard]] Value at(char16_t unit)
    {
        std::unique_ptr<Page> &page = m_pages[unit / pageLength];
        if (!page)
            page = makePage(unit / pageLength);
        return (*page)[unit % pageLength];
    }

private:
    static constexpr size_t pageLength = 256;
    using Page = std::array<Value, pageLength>;

    [[nodiscard]] std::unique_ptr<Page> makePage(size_t index) const
    {
        auto page = std::make_unique<Page>();
        for (size_t i = 0; i < pageLength; ++i)
            (*page)[i] = m_valueOf(static_cast<char16_t>(index * pageLength + i));
        return page;
    }

    Value (*m_valueOf)(char16_t unit);
    std::array<std::unique_ptr<Page>, 65'536 / pageLength> m_pages;
};
