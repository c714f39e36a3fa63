// SPDX-License-Identifier: MIT
// WatchTextFileModelDelegate is told by a WatchTextFileModel what has become of the watched document.
// Thread: main, from inside the model's messages; it may stop or destroy the model.  Owner: anyone.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "platform/system/WeakDelegate.h"

#include <QUrl>

class WatchTextFileModel;

class WatchTextFileModelDelegate : public Delegate {
public:
    /// The document was read. Not told for Word documents.
    virtual void currentlyWatchedTextFileDidUpdateWithAttributedString(
        const AttributedString &attributedString, WatchTextFileModel &watchModel) = 0;
    /// The document cannot be read, or has gone; the model has stopped watching already.
    virtual void currentlyWatchedTextFileDidFailToLoadAttribedText(WatchTextFileModel &watchModel) = 0;
    /// A Word document is there after a change. docxData: its file: URL, not its bytes.
    virtual void currentlyWatchedDocXFileDidUpdateWithDocxData(
        const QUrl &docxData, WatchTextFileModel &watchModel) = 0;
    /// newName: the last component of the new path. Optional.
    virtual void currentlyWatchedTextFileWasRenamed(
        const QString & /*newName*/, WatchTextFileModel & /*watchModel*/)
    {
    }
};
