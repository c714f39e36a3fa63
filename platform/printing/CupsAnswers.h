// SPDX-License-Identifier: MIT
// CupsAnswers are what a CUPS server has said of one destination, before they are made a Printer.
// Thread: any; borrows the IPP message.
#pragma once

#include "platform/printing/PrinterSource.h"

#include <QByteArray>

// NOLINTNEXTLINE(bugprone-reserved-identifier,modernize-use-using): as CUPS has it
typedef struct _ipp_s ipp_t;

struct CupsAnswers {
    ipp_t *attributes = nullptr; ///< of the printer; null reads as none
    QByteArray descriptionFile = {}; ///< its PPD file, empty if it has none
    // Options that the user or the server has set for the destination, empty if nobody has.
    QByteArray pageSizeOption = {};
    QByteArray mediaOption = {};
    QByteArray scalingOption = {};
};

/// Papers come from the printer description, else from media-col-database (PWG 5100.7); of these only the
/// ones of the built-in catalogue have names, those of the catalogue. Identifiers are the media keywords (PWG
/// 5101.1) of media-supported. Well-known papers get their nominal size, others that of the printer.
///
/// The default paper is the first that is one of the printer's: option PageSize, option media, the
/// description's *DefaultPageSize, the attribute media-default. The page scale is the option "scaling"
/// between 0 and 1000 per cent, else 100; print-scaling names no number.
Printer printerInAnswers(const CupsAnswers &answers);
