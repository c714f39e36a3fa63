// SPDX-License-Identifier: MIT
// FontWorld is a machine with only the fonts that a test names: it writes a font configuration and points the
// environment to it.
// Thread: main.  Owner: the test.
#pragma once

#include <QString>
#include <QStringList>

/// The path of a font file of Debian's packages, by its name; fails the test where it is not installed.
QString installedFont(const QString &fileName);

/// From here to the end of the test fontconfig finds these files only.
void useOnlyFonts(const QStringList &fileNames);
