// SPDX-License-Identifier: MIT
// RtfEscapes writes characters as RTF 1.9.1 has them: what is neither ASCII nor printable as \u and a number,
// which needs \uc0 at the start of the document.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QStringView>

/// A piece of the text: line ends and tabulators as \par and \tab.
void appendRtfText(QByteArray &rtf, QStringView text);

/// A name in a destination of its own: also line ends, tabulators, semicolons, and blanks at its ends as \u
/// and a number.
void appendRtfName(QByteArray &rtf, QStringView name);
