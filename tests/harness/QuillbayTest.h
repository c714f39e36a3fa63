// SPDX-License-Identifier: MIT
// QuillbayTest is the fixture of tests that touch the user's world: home folder, locale, bus, files.
// Every test of a test program starts in a fresh TestHome, with or without this fixture; it adds the words.
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

    /// As if the user had logged in with LANG=name: LC_ALL and every category follow it.
    static void setLocale(const char *name);
    /// As a program does when it starts. A locale that is not installed leaves "C" in force, as it does
    /// there.
    static void takeLocaleFromEnvironment();

    /// Writes a file below the test's root folder and returns its path.
    static QString writeFile(const QString &name, const QByteArray &contents);
    /// The same for a name that need not be text in any encoding.
    static QByteArray writeFileOfBytes(const QByteArray &name, const QByteArray &contents);
    static QByteArray readFile(const QString &path);
};

/// The folder of documents of others that some tests walk through; empty where the caller named none.
QString corporaFolder();

// For readable failures.
void PrintTo(const QString &text, std::ostream *stream);
