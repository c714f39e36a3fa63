// SPDX-License-Identifier: MIT
// RulesSource takes snapshots of what counts depend on: the preferences, the page, the fonts. It works on a
// thread of its own, because the print server may take a second to answer; the print settings, the measuring
// surface and the preferences of the process belong to that thread.
// Thread: main.  Owner: CountingService.
#pragma once

#include "counting_service/protocol/WorkerMessages.h"
#include "platform/sandbox/FontSources.h"

#include <QObject>
#include <QThread>

#include <functional>
#include <vector>

class RulesSource : public QObject {
    Q_OBJECT

public:
    struct Snapshot {
        RulesSnapshot rules; ///< with the broker's locale
        quint64 fontGeneration = 0; ///< as of FontWatch
    };
    using Receiver = std::function<void(const Snapshot &)>;

    RulesSource();
    /// Waits for a snapshot in progress; calls no receiver any more.
    ~RulesSource() override;

    /// As of FontWatch. Only before the first snapshot is requested.
    [[nodiscard]] quint64 fontGeneration() { return m_fonts.generation(); }

    /// Calls the receiver later, on the calling thread, with a snapshot that was begun after this call.
    /// Receivers are called in the order of the requests.
    void requestSnapshot(const Receiver &receiver);

Q_SIGNALS:
    void snapshotRequested(); ///< to the thread
    void snapshotTaken(const RulesSource::Snapshot &snapshot); ///< from the thread

private:
    void startNext();
    [[nodiscard]] Snapshot takeSnapshot();
    void deliver(const Snapshot &snapshot);

    QThread m_thread;
    QObject m_onThread; ///< lives on the thread
    FontWatch m_fonts; ///< used by the thread once it runs
    quint64 m_generation = 0; ///< used by the thread
    bool m_isTaking = false;
    std::vector<Receiver> m_current; ///< of the snapshot in progress
    std::vector<Receiver> m_waiting; ///< for the next snapshot
};
