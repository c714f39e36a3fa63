// SPDX-License-Identifier: MIT
#include "text_statistics/SampleText.h"

#include <QStringList>

QString pagePreviewSampleText()
{
    const QString paragraph = QStringLiteral(
        "Lorem ipsum dolor sit amet, consectetur adipiscing elit, sed do eiusmod tempor incididunt ut "
        "labore et dolore magna aliqua. Ut enim ad minim veniam, quis nostrud exercitation ullamco "
        "laboris nisi ut aliquip ex ea commodo consequat. Duis aute irure dolor in reprehenderit in "
        "voluptate velit esse cillum dolore eu fugiat nulla pariatur. Excepteur sint occaecat cupidatat "
        "non proident, sunt in culpa qui officia deserunt mollit anim id est laborum.");
    return u'\n' + QStringList(4, paragraph).join(u'\n');
}
