// SPDX-License-Identifier: MIT
// CountQueue has documents counted by the counting service, a few at a time, so that many documents that are
// saved at once do not open as many connections.
// Thread: main.  Owner: DocumentList; outlives those who wait.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

class WordCounterViewController;

class CountQueue : public QObject {
    Q_OBJECT

public:
    /// A text, or the file of a Word document, which the service reads.
    using Content = std::variant<AttributedString, QUrl>;
    /// Absent if the service does not answer.
    using Done = std::function<void(const std::optional<QBYWordCounterStats> &stats)>;

    static constexpr std::chrono::seconds maxSilence{60};

    CountQueue();
    ~CountQueue() override;

    /// Later calls done, unless asker is destroyed. Replaces what the same asker is still waiting for.
    void count(QObject &asker, Content content, Done done);
    /// How many documents wait or are being counted.
    [[nodiscard]] std::size_t size() const;

Q_SIGNALS:
    /// A document was counted.
    void advanced();

private:
    struct Job {
        QPointer<QObject> asker;
        Content content;
        Done done;
    };
    struct Counter {
        std::shared_ptr<WordCounterViewController> panel; // its views are never loaded
        std::optional<Job> job;
        QTimer silence;
    };

    void startJobs();
    void start(Counter &counter, Job job);
    void finish(Counter &counter, bool isCounted);

    std::deque<Job> m_waiting;
    std::vector<std::unique_ptr<Counter>> m_counters;
};
