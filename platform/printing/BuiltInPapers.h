// SPDX-License-Identifier: MIT
// BuiltInPapers is the catalogue of papers that replaces a printer's list if no printer is configured.
// Thread: any.
#pragma once

#include "platform/printing/Paper.h"

#include <vector>

/// With PPD names and the margins of the generic printer descriptions: 18 points left and right, 36 points
/// top and bottom.
const std::vector<Paper> &builtInPapers();

/// The paper of the catalogue with this size in points, within a millimetre.
std::optional<Paper> builtInPaperOfSize(QSizeF size);

/// The default paper of the system: the one configured in libpaper, otherwise that of the region of LC_PAPER.
/// Always a paper of builtInPapers().
Paper builtInDefaultPaper();
