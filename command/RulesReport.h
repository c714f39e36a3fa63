// SPDX-License-Identifier: MIT
// The text of "quillbay count --explain-rules": what the counts depend on besides the documents.
// Thread: main.
#pragma once

#include "text_statistics/CountingRules.h"
#include "text_statistics/FurtherStats.h"

#include <QByteArray>
#include <QByteArrayList>

/// A line with name and value for each rule. The rules of further counts only if any is shown. fontFiles: the
/// files of the fonts that the lines were measured with.
QByteArray explanationOfRules(
    const CountingRules &rules, const FurtherRules &further, const QByteArrayList &fontFiles);
/// The same as a JSON object on a line of its own; lengths in points.
QByteArray jsonOfRules(
    const CountingRules &rules, const FurtherRules &further, const QByteArrayList &fontFiles);
