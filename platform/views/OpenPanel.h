// SPDX-License-Identifier: MIT
// OpenPanel says which files the user may choose from; a Desktop shows it.
// Thread: main; a value.
#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>

struct OpenPanel {
    /// urls: what was chosen, at least one; absent where the user has cancelled.
    using Completion = std::function<void(const std::optional<QList<QUrl>> &urls)>;

    /// MIME types, the usual kind first; files of derived types are offered too. Empty for all files.
    QStringList allowedFileTypes;
    /// Folders whose names end in one of these suffixes (without the dot, in any case) are documents: they
    /// are chosen, not entered.
    QStringList packageSuffixes = {};
    bool allowsMultipleSelection = false;
};
