// SPDX-License-Identifier: MIT
// TableCopy writes rows of a table for the clipboard: as text, CSV and HTML at once.
// Thread: main.
#pragma once

#include <QAbstractItemModel>
#include <QMimeData>

#include <memory>
#include <vector>

/// With the titles of the columns as the first row. A field of the CSV (RFC 4180) that a spreadsheet would
/// take for a formula begins with an apostrophe.
std::unique_ptr<QMimeData> copyOfRows(const QAbstractItemModel &model, const std::vector<int> &rows);
