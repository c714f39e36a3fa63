// SPDX-License-Identifier: MIT
// WaylandSelectionTest is the fixture of tests that read the selections of a private Wayland compositor.
// There is a private X display too, of another session.
// Thread: main.
#pragma once

#include "tests/harness/Compositor.h"
#include "tests/platform/pasteboard/SelectionTest.h"

#include <optional>

class WaylandSelectionTest : public SelectionTest {
protected:
    void SetUp() override
    {
        SKIP_WITHOUT_PACKAGE(TestCompositor::isInstalled(), TestCompositor::packages);
        m_compositor.emplace();
    }

    /// selection: "primary" or "clipboard".
    struct WaylandOwner : SelectionOwner {
        WaylandOwner(const QByteArray &selection, const Forms &forms, const QByteArray &manner = "good")
            : SelectionOwner(selection, forms, manner, QStringLiteral("wayland_owner"))
        {
        }
    };

    std::optional<TestCompositor> m_compositor;
};
