// SPDX-License-Identifier: MIT
// How tests handle packages that are not installed.
// Thread: main.
#pragma once

#include <gtest/gtest.h>

/// Whether QUILLBAY_REQUIRE_PACKAGES is set, which makes missing packages failures.
bool packagesAreRequired();

/// For the start of a test or of SetUp(): if the condition is false, skips the test, or fails it if packages
/// are required. package: the missing Debian package, or several.
#define SKIP_WITHOUT_PACKAGE(condition, package)    \
    if (condition) {                                \
    } else if (packagesAreRequired())               \
        FAIL() << "missing package: " << (package); \
    else                                            \
        GTEST_SKIP() << "missing package: " << (package)
