// SPDX-License-Identifier: MIT
// Waiting for a fact instead of for a time.
#pragma once

#include <chrono>
#include <functional>

/// Runs the event loop until the condition holds and returns true, or gives up at the limit and returns
/// false. The limit is for a broken program only; a test that passes never waits for it.
[[nodiscard]] bool waitUntil(
    const std::function<bool()> &condition, std::chrono::milliseconds limit = std::chrono::seconds(20));
