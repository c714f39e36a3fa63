// SPDX-License-Identifier: MIT
// ProgressRecorder records what windows have counted, on a thread of its own, and notifies the user of goals
// that are reached and limits that are passed.
// Thread: main.  Owner: the program with the windows. What is not yet recorded when the process exits is lost.
#pragma once

#include "platform/system/DispatchQueue.h"
#include "writing_progress/ProgressStore.h"

#include <functional>
#include <memory>

/// Does nothing for documents that are in no list. A store that cannot be used is logged once; nobody waits
/// for it.
class ProgressRecorder {
public:
    ProgressRecorder();

    void record(const DocumentCount &count);
    /// A document was moved or renamed.
    void move(const QByteArray &from, const QByteArray &to);
    /// Calls the function on the main thread when everything before is recorded.
    void whenRecorded(std::function<void()> function);

private:
    struct Work;

    DispatchQueue m_queue;
    std::shared_ptr<Work> m_work; // used on the queue only
};
