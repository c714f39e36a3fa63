// SPDX-License-Identifier: MIT
// RulesExplanation tells a reader what counts rest on besides the text.
// Thread: any.
#pragma once

#include "text_statistics/CountingRules.h"

#include <QByteArray>
#include <QByteArrayList>

/// A line for each rule, name and value; fontFiles: those that lines were measured with.
QByteArray rulesExplanation(const CountingRules &rules, const QByteArrayList &fontFiles);
