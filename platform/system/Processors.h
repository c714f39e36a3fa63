// SPDX-License-Identifier: MIT
// The processors that this process may use.
// Thread: any.
#pragma once

#include <QByteArrayView>

#include <optional>

/// As many as the affinity of the process and the quotas of its control groups (version 2) allow; 1 or more.
int availableProcessors();

/// The content of a file cpu.max as a number of processors, rounded up; absent if it sets no limit.
std::optional<int> processorsOfQuota(QByteArrayView quota);
