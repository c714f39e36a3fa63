// SPDX-License-Identifier: MIT
// FakeStatusBar is a tray without a screen.
// Thread: main.  Owner: the test; outlives its items.
#pragma once

#include "platform/views/StatusItem.h"

#include <algorithm>
#include <vector>

class FakeStatusBar final : public StatusBar {
public:
    [[nodiscard]] std::unique_ptr<StatusItemInBar> addItem(std::shared_ptr<StatusItem> item) override
    {
        items.push_back(item.get());
        return std::make_unique<InBar>(std::move(item), *this);
    }

    std::vector<StatusItem *> items;

private:
    class InBar final : public StatusItemInBar {
    public:
        InBar(std::shared_ptr<StatusItem> item, FakeStatusBar &bar)
            : m_item(std::move(item))
            , m_bar(bar)
        {
        }
        ~InBar() override { std::erase(m_bar.items, m_item.get()); }

    private:
        std::shared_ptr<StatusItem> m_item;
        FakeStatusBar &m_bar;
    };
};
