// SPDX-License-Identifier: MIT
// FollowedDocument is one document of the list: it follows its file, has each save counted and recorded, and
// knows what the user is shown of it. It is a watcher without a window.
// Thread: main.  Owner: DocumentList.
#pragma once

#include "desk/documents/CountQueue.h"
#include "watching/WatchTextFileModel.h"
#include "writing_progress/ProgressRecorder.h"

#include <QDateTime>
#include <QObject>

/// What all documents of the list share; outlives them.
struct FollowingSurroundings {
    CountQueue &queue;
    ProgressRecorder &recorder;
    ApplicationActivity &activity;
};

class FollowedDocument : public QObject, public WatchTextFileModelDelegate {
    Q_OBJECT

public:
    enum class State {
        Waiting, ///< to be counted
        Counted,
        Missing, ///< there is no file
        Unreadable,
        Uncounted, ///< the counting service does not answer
    };

    FollowedDocument(const ListedDocument &listed, const FollowingSurroundings &surroundings);
    ~FollowedDocument() override;

    [[nodiscard]] qint64 identifier() const { return m_identifier; }
    [[nodiscard]] const QByteArray &path() const { return m_path; }
    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] const QDateTime &saved() const { return m_saved; }
    /// Absent for a document that was never counted. Its counts are the newest ones.
    [[nodiscard]] const std::optional<DayTotal> &today() const { return m_today; }
    void setToday(const DayTotal &today);
    /// By how much the words have changed since this document was opened here; absent if it is not counted.
    [[nodiscard]] std::optional<qint64> changeOfSession() const;

    /// Begins to follow the file; counts it unless it is as it was at its last count.
    void begin();
    /// Whether a file that was missing or unreadable has changed since.
    [[nodiscard]] bool isBack() const;
    /// Whether the file or the rules of the counts have changed since its last count.
    [[nodiscard]] bool isOutdated() const;
    /// The user has found the file.
    void follow(const QByteArray &path);

    void currentlyWatchedTextFileDidUpdateWithAttributedString(
        const AttributedString &attributedString, WatchTextFileModel &watchModel) override;
    void currentlyWatchedTextFileDidFailToLoadAttribedText(WatchTextFileModel &watchModel) override;
    void currentlyWatchedDocXFileDidUpdateWithDocxData(
        const QUrl &docxData, WatchTextFileModel &watchModel) override;
    void currentlyWatchedTextFileWasRenamed(const QString &newName, WatchTextFileModel &watchModel) override;

Q_SIGNALS:
    void changed();
    /// The counts are stored: what the day brought can be read again.
    void recorded();
    /// from: the path that it had before.
    void moved(const QByteArray &from);

private:
    void count(CountQueue::Content content, std::optional<quint64> contentNumber);
    void take(const QBYWordCounterStats &stats, const QByteArray &stamp);
    void setState(State state);

    const FollowingSurroundings m_surroundings;
    const qint64 m_identifier;
    QByteArray m_path;
    QByteArray m_stamp; // of the last count
    State m_state = State::Waiting;
    QDateTime m_saved;
    std::optional<DayTotal> m_today;
    std::optional<QBYWordCounterStats> m_atFirst; // when the session began
    std::unique_ptr<WatchTextFileModel> m_model; // null until it is followed
};
