// SPDX-License-Identifier: MIT
// WatchTextFileModelDelegate is notified by a WatchTextFileModel of changes of the watched document. It may
// stop or destroy the model in any of these calls.
// Thread: main.  Owner: independent of the model, which refers to it weakly.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "platform/system/WeakDelegate.h"

#include <QUrl>

class WatchTextFileModel;

class WatchTextFileModelDelegate : public Delegate {
public:
    /// The document was read. Never called for Word documents.
    virtual void currentlyWatchedTextFileDidUpdateWithAttributedString(
        const AttributedString &attributedString, WatchTextFileModel &watchModel) = 0;
    /// The document cannot be read or has disappeared; the model has stopped watching already.
    virtual void currentlyWatchedTextFileDidFailToLoadAttribedText(WatchTextFileModel &watchModel) = 0;
    /// A Word document has changed and exists. docxData: its file: URL, not its bytes.
    virtual void currentlyWatchedDocXFileDidUpdateWithDocxData(
        const QUrl &docxData, WatchTextFileModel &watchModel) = 0;
    /// newName: the last component of the new path. Optional.
    virtual void currentlyWatchedTextFileWasRenamed(
        const QString & /*newName*/, WatchTextFileModel & /*watchModel*/)
    {
    }
};
