// SPDX-License-Identifier: MIT
// FontWorld simulates a machine that has only the fonts of a test: it writes a font configuration and sets
// the environment to it.
// Thread: main.  Owner: the test.
#pragma once

#include <QString>
#include <QStringList>

/// The path of a font file of Debian's packages, by its name; fails the test if it is not installed.
QString installedFont(const QString &fileName);

/// From now on to the end of the test, fontconfig finds only these files.
void useOnlyFonts(const QStringList &fileNames);
