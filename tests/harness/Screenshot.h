// SPDX-License-Identifier: MIT
// Screenshots of the private display, for a test to look into and for people to look at.
// Thread: main.
#pragma once

#include <QImage>
#include <QString>

/// The whole screen, in the pixels of the display.
QImage takeScreenshot();

/// Takes one and also writes it as NAME.png to the folder that QUILLBAY_SCREENSHOTS names; without that
/// variable into the folder of the test, which goes away with it.
QImage saveScreenshot(const QString &name);
