// SPDX-License-Identifier: MIT
// ParagraphWords says paragraph styles in RTF.
// Thread: any.
#pragma once

#include "platform/styled_text/TextAttributes.h"

#include <QByteArray>

class ExactValues;

/// From \pard on, in a document that begins with \deftab and the tab interval of ParagraphStyle{}.
QByteArray paragraphWords(const ParagraphStyle &style, ExactValues &exactValues);

/// That \deftab.
QByteArray defaultTabWord();
