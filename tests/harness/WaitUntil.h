// SPDX-License-Identifier: MIT
// Waiting for a condition instead of sleeping.
// Thread: main.
#pragma once

#include <chrono>
#include <functional>

/// Runs the event loop until the condition is true, or returns false after the timeout. Only failing tests
/// reach the timeout.
[[nodiscard]] bool waitUntil(
    const std::function<bool()> &condition, std::chrono::milliseconds timeout = std::chrono::seconds(20));
