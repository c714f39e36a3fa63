// SPDX-License-Identifier: MIT
// The choice of the documents that the program accepts: those of the four kinds of FileTypes.h.
// Thread: main.
#pragma once

#include "platform/views/OpenPanel.h"

namespace QBYExtension {

/// For one document.
OpenPanel openPanelForTextFiles();

/// Offers rich text with attachments, rich text, text and Word documents, in this order. Rich text with
/// attachments is a folder, and a chooser of files enters a folder instead of choosing it: its type is named
/// for choosers that can do both. In all others the user chooses the RTF in the folder, TXT.rtf, which has
/// the whole text.
OpenPanel openPanelForTextFilesAllowMultipleSelection(bool allowMultipleSelection);

} // namespace QBYExtension
