// SPDX-License-Identifier: MIT
// Screenshots of the private display, for tests and for people.
// Thread: main.
#pragma once

#include <QImage>
#include <QString>

/// The whole screen, in the pixels of the display.
QImage takeScreenshot();

/// Takes one and also writes it as NAME.png to the folder that QUILLBAY_SCREENSHOTS names; without that
/// variable to the test's own folder, which is removed with the test.
QImage saveScreenshot(const QString &name);
