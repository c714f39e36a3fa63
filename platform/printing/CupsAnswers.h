// SPDX-License-Identifier: MIT
// CupsAnswers are the answers of a CUPS server about one destination, from which a Printer is made.
// Thread: any.  Owner: the caller owns the IPP message.
#pragma once

#include "platform/printing/PrinterSource.h"

#include <QByteArray>

// NOLINTNEXTLINE(bugprone-reserved-identifier,modernize-use-using): as CUPS has it
typedef struct _ipp_s ipp_t;

struct CupsAnswers {
    ipp_t *attributes = nullptr; ///< of the printer; null: none
    QByteArray descriptionFile = {}; ///< its PPD file, empty if there is none
    // Options that the user or the server has set for the destination, empty if not set.
    QByteArray pageSizeOption = {};
    QByteArray mediaOption = {};
    QByteArray scalingOption = {};
};

/// Papers come from the printer description, otherwise from media-col-database (PWG 5100.7); those of the
/// database have names only if they are in the built-in catalogue. Identifiers are the media keywords (PWG
/// 5101.1) of media-supported. Papers of the catalogue get their nominal size, others that of the printer.
///
/// The default paper is the first of these that the printer has: option PageSize, option media, the
/// description's *DefaultPageSize, the attribute media-default. The page scale is the option "scaling" if it
/// is between 0 and 1000 per cent, otherwise 100; print-scaling is not a number.
Printer parsePrinter(const CupsAnswers &answers);
