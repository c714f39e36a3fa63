// SPDX-License-Identifier: MIT
// QuillbayTest is the fixture of tests that use the user's environment: home folder, locale, bus, files.
// Every test starts in a fresh TestHome, with or without this fixture; the fixture adds short names for it.
// Thread: main.
#pragma once

#include "tests/harness/ChildProcess.h"
#include "tests/harness/RecordingLogSink.h"
#include "tests/harness/Requirement.h"
#include "tests/harness/SessionBus.h"
#include "tests/harness/TestHome.h"
#include "tests/harness/WaitUntil.h"

#include <gmock/gmock.h>

class QuillbayTest : public ::testing::Test {
protected:
    [[nodiscard]] static TestHome &world() { return TestHome::instance(); }

    /// Like a login with LANG=name: it determines LC_ALL and every category.
    static void setLocale(const char *name);
    /// What a program does when it starts. If the locale is not installed, "C" stays in effect, like in a
    /// program.
    static void takeLocaleFromEnvironment();

    /// Writes a file below the test's root folder and returns its path.
    static QString writeFile(const QString &name, const QByteArray &contents);
    /// The same for a name that may be invalid in every encoding.
    static QByteArray writeFileOfBytes(const QByteArray &name, const QByteArray &contents);
    static QByteArray readFile(const QString &path);
};

/// The folder of foreign documents that some tests read; empty if the environment names none.
QString corporaFolder();

// For readable failure messages.
void PrintTo(const QString &text, std::ostream *stream);
