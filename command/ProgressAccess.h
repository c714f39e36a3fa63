// SPDX-License-Identifier: MIT
// What the commands share that read and change the list of documents, their goals and their history.
// Thread: main.
#pragma once

#include "writing_progress/ProgressStore.h"

/// The absolute path of a name on the command line.
QByteArray pathOfName(const QByteArray &name);

/// Reports on standard error that the store cannot be used. Returns the exit status 1.
int reportStoreFault(const ProgressStore &store, const DatabaseFault &fault);

/// Reports a broken store that was put aside, if there was one.
void reportBrokenFile(const ProgressStore &store);

/// The fault of an operation as an exit status: 0 if there is none, 1 after reporting it.
int statusOf(const ProgressStore &store, const ProgressStore::Failure &failure);

/// Of a name as users type it, such as "all-characters"; absent if goals cannot have it.
std::optional<Statistic> goalStatisticNamed(const QByteArray &name);
