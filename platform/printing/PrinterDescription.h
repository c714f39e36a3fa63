// SPDX-License-Identifier: MIT
// PrinterDescription is the part of a printer description file (PPD format 4.3) that tells papers.
// Thread: any; a value.
#pragma once

#include "platform/printing/Paper.h"

#include <QByteArrayView>

#include <vector>

struct PrinterDescription {
    std::vector<Paper> papers; ///< in the order of the *PageSize choices, without identifiers
    std::optional<QString> defaultPaperName; ///< absent if the file names none, or "Unknown"
};

/// Reads any bytes. Choices without a sensible *PaperDimension are left out, margins without an
/// *ImageableArea are 0; of more than 1000 choices only the first 1000 are read.
PrinterDescription printerDescription(QByteArrayView file);
