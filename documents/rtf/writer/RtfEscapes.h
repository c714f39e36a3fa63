// SPDX-License-Identifier: MIT
// RtfEscapes writes characters as RTF 1.9.1. Characters that are not printable ASCII become \u and a number,
// which requires \uc0 at the start of the document.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QStringView>

/// Appends text; line ends and tabulators become \par and \tab.
void appendRtfText(QByteArray &rtf, QStringView text);

/// Appends a name in a destination of its own. Line ends, tabulators, semicolons, and blanks at its ends
/// become \u and a number too.
void appendRtfName(QByteArray &rtf, QStringView name);
