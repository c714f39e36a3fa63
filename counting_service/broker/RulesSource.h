// SPDX-License-Identifier: MIT
// RulesSource takes snapshots of what counts rest on: the preferences, the page, the fonts. The print server
// may let it wait for a second, so it works on a thread of its own; the print settings, the measuring surface
// and the preferences of the process belong to that thread.
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
        RulesSnapshot rules; ///< with the broker's own locale
        quint64 fontGeneration = 0; ///< as of FontWatch
    };
    using Receiver = std::function<void(const Snapshot &)>;

    RulesSource();
    /// Waits for a snapshot that is being taken, and tells nobody.
    ~RulesSource() override;

    /// Looks at the fonts alone, at once; to be called before the first snapshot is asked for.
    [[nodiscard]] quint64 fontGeneration() { return m_fonts.generation(); }

    /// Later calls the receiver, on the thread of the caller, with a snapshot that was begun after this call.
    /// All that wait for the same one are called in the order in which they asked.
    void ask(const Receiver &receiver);

Q_SIGNALS:
    void wanted(); ///< for the thread
    void taken(const RulesSource::Snapshot &snapshot); ///< for us

private:
    void takeNext();
    [[nodiscard]] Snapshot take();
    void hand(const Snapshot &snapshot);

    QThread m_thread;
    QObject m_onThread; ///< lives on the thread
    FontWatch m_fonts; ///< the thread's, once it runs
    quint64 m_generation = 0; ///< the thread's
    bool m_isTaking = false;
    std::vector<Receiver> m_served; ///< by the snapshot that is being taken
    std::vector<Receiver> m_waiting; ///< for the next
};
