// SPDX-License-Identifier: MIT
#include "desk/documents/FollowedDocument.h"

#include "platform/system/FileURL.h"
#include "writing_progress/CountStamp.h"

#include <QFileInfo>

namespace {

QDateTime savedTime(const QByteArray &path)
{
    return QFileInfo(QFile::decodeName(path)).lastModified();
}

} // namespace

FollowedDocument::FollowedDocument(const ListedDocument &listed, const FollowingSurroundings &surroundings)
    : m_surroundings(surroundings)
    , m_identifier(listed.identifier)
    , m_path(listed.path)
    , m_stamp(listed.stamp)
{
}

FollowedDocument::~FollowedDocument() = default;

void FollowedDocument::setToday(const DayTotal &today)
{
    m_today = today;
    Q_EMIT changed();
}

std::optional<qint64> FollowedDocument::changeOfSession() const
{
    if (!m_today || !m_atFirst)
        return std::nullopt;
    return static_cast<qint64>(m_today->counts.numberOfWords - m_atFirst->numberOfWords);
}

void FollowedDocument::begin()
{
    m_saved = savedTime(m_path);
    if (!m_saved.isValid()) {
        setState(State::Missing);
        return;
    }
    m_model = std::make_unique<WatchTextFileModel>(fileURLOfPath(m_path), this, m_surroundings.activity);
    m_model->beginWatchingTextFile();
    const QByteArray stamp = countStamp(m_path);
    if (m_today && !stamp.isEmpty() && stamp == m_stamp) {
        if (!m_atFirst)
            m_atFirst = m_today->counts;
        setState(State::Counted);
    } else {
        setState(State::Waiting);
        m_model->forceRead(nullptr);
    }
}

bool FollowedDocument::isBack() const
{
    return savedTime(m_path) != m_saved;
}

bool FollowedDocument::isOutdated() const
{
    return m_state == State::Counted && countStamp(m_path) != m_stamp;
}

void FollowedDocument::follow(const QByteArray &path)
{
    m_path = path;
    m_stamp.clear();
    begin();
}

void FollowedDocument::setState(State state)
{
    m_state = state;
    Q_EMIT changed();
}

void FollowedDocument::currentlyWatchedTextFileDidUpdateWithAttributedString(
    const AttributedString &attributedString, WatchTextFileModel &watchModel)
{
    count(attributedString, watchModel.contentNumber());
}

void FollowedDocument::currentlyWatchedDocXFileDidUpdateWithDocxData(
    const QUrl &docxData, WatchTextFileModel & /*watchModel*/)
{
    count(docxData, {});
}

void FollowedDocument::count(CountQueue::Content content, std::optional<quint64> contentNumber)
{
    if (m_state != State::Counted)
        setState(State::Waiting);
    m_surroundings.queue.count(*this, std::move(content),
        [this, contentNumber, stamp = countStamp(m_path)](const std::optional<QBYWordCounterStats> &stats) {
            if (!stats) {
                setState(State::Uncounted);
                return;
            }
            if (m_model && contentNumber)
                m_model->contentWasCounted(*contentNumber);
            take(*stats, stamp);
        });
}

void FollowedDocument::take(const QBYWordCounterStats &stats, const QByteArray &stamp)
{
    if (!m_atFirst)
        m_atFirst = stats;
    if (!m_today)
        m_today = DayTotal{.day = QDate::currentDate(), .before = stats, .counts = stats, .added = {}};
    m_today->counts = stats;
    m_stamp = stamp;
    m_saved = savedTime(m_path);
    setState(State::Counted);
    m_surroundings.recorder.record({.path = m_path, .stats = stats, .saved = m_saved, .stamp = stamp});
    m_surroundings.recorder.whenRecorded([document = QPointer<FollowedDocument>(this)] {
        if (document)
            Q_EMIT document->recorded();
    });
}

void FollowedDocument::currentlyWatchedTextFileDidFailToLoadAttribedText(WatchTextFileModel & /*watchModel*/)
{
    m_saved = savedTime(m_path);
    setState(m_saved.isValid() ? State::Unreadable : State::Missing);
}

void FollowedDocument::currentlyWatchedTextFileWasRenamed(
    const QString & /*newName*/, WatchTextFileModel &watchModel)
{
    const QByteArray from = std::exchange(m_path, pathOfFileURL(watchModel.presentedItemURL()));
    m_surroundings.recorder.move(from, m_path);
    Q_EMIT moved(from);
    Q_EMIT changed();
}
