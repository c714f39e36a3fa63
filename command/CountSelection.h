// SPDX-License-Identifier: MIT
// The arguments of "quillbay count" that name counts: --also, --columns, --sort and --goal. All errors are
// messages for the user.
// Thread: main.
#pragma once

#include "command/CountArguments.h"
#include "platform/system/Result.h"

/// --also. isInService: what needs the text is refused.
Result<std::vector<FurtherStatistic>, QString> furtherListOf(const QByteArray &names, bool isInService);

/// --columns. isInService: as above.
Result<CountColumns, QString> columnListOf(const QByteArray &names, bool isInService);

/// --sort: "name" or the name of a column.
Result<SortKey, QString> sortKeyOf(const QByteArray &name);

/// --goal: "5000", for words, or "5000 characters".
Result<CountGoal, QString> goalOf(const QByteArray &text);
