// SPDX-License-Identifier: MIT
// The built-in catalogue: the papers that stand in for a printer's list where no printer is configured.
// Thread: any.
#pragma once

#include "platform/printing/Paper.h"

#include <vector>

/// Under their PPD names, with the margins of the generic printer descriptions: 18 points left and right,
/// 36 points top and bottom.
const std::vector<Paper> &builtInPapers();

/// The paper of the catalogue with that size in points, within a millimetre.
std::optional<Paper> builtInPaperOfSize(QSizeF size);

/// The paper of the user's surroundings: what libpaper is configured to, else the paper of the region in the
/// locale's LC_PAPER. Always a paper of builtInPapers().
Paper builtInDefaultPaper();
