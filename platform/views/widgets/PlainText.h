// SPDX-License-Identifier: MIT
// Texts of the user, such as file names, in places where Qt looks for markup or placeholders: they are shown
// letter for letter. Labels and message boxes have Qt::PlainText for it; these places have no such switch.
// Thread: any.
#pragma once

#include <QString>

/// For tooltips of widgets and of the tray. Text that Qt would take for markup gets an invisible word joiner
/// (U+2060) behind each '<' and '&'; all other text stays as it is. Unlike an escaped text it also reads well
/// where the desktop shows the tooltip, not Qt.
QString plainToolTip(const QString &text);

/// For QWidget::setWindowTitle(), which drops "[*]".
QString plainWindowTitle(const QString &title);
