// SPDX-License-Identifier: MIT
// PrinterDescription has the papers of a printer description file (PPD format 4.3); ignores the rest of the
// file.
// Thread: any; a value.
#pragma once

#include "platform/printing/Paper.h"

#include <QByteArrayView>

#include <vector>

struct PrinterDescription {
    std::vector<Paper> papers; ///< in the order of the *PageSize choices, without identifiers
    std::optional<QString> defaultPaperName; ///< absent if the file has none, or "Unknown"
};

/// Accepts any bytes. Leaves out choices without a valid *PaperDimension; margins are 0 without an
/// *ImageableArea. Reads at most 1000 choices.
PrinterDescription parsePrinterDescription(QByteArrayView file);
