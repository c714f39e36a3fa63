// SPDX-License-Identifier: MIT
// What a test needs of packages that a machine may lack. Thread: main.
#pragma once

#include <gtest/gtest.h>

/// Whether QUILLBAY_REQUIRE_PACKAGES is set: a missing package is a failure then.
bool packagesAreRequired();

/// For the start of a test or of SetUp(): goes on where the condition holds. Otherwise it skips the test, or
/// fails it where packages are required. package: the Debian package that is missing, or several.
#define SKIP_WITHOUT_PACKAGE(condition, package)    \
    if (condition) {                                \
    } else if (packagesAreRequired())               \
        FAIL() << "missing package: " << (package); \
    else                                            \
        GTEST_SKIP() << "missing package: " << (package)
