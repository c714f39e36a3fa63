// SPDX-License-Identifier: MIT
// The thread on which all connections of the process talk to the bus and deliver replies, so that a bus that
// hangs holds up nobody else. Thread: any.  Used inside this folder only.
#pragma once

class QThread;

namespace ConnectionThread {

/// Runs an event loop, from the first call until the QCoreApplication ends.
QThread *shared();

} // namespace ConnectionThread
