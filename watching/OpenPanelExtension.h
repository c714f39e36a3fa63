// SPDX-License-Identifier: MIT
// The choice of the documents that the program accepts: those of the four kinds of FileTypes.h.
// Thread: main.
#pragma once

#include "platform/views/Desktop.h"

namespace QBYExtension {

/// For one document.
OpenPanel openPanelForTextFiles();

/// Offers rich text with attachments, rich text, text and Word documents, in this order. A folder of rich
/// text with attachments is chosen as one document, not entered.
OpenPanel openPanelForTextFilesAllowMultipleSelection(bool allowMultipleSelection);

} // namespace QBYExtension
