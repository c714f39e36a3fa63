// SPDX-License-Identifier: MIT
// The text that fills the column of the page preview.
// Thread: any.
#pragma once

#include <QString>

/// A line end, then four equal paragraphs of placeholder text with a line end between each and the next:
/// 1,784 UTF-16 code units.
QString pagePreviewSampleText();
