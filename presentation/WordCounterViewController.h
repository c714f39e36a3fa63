// SPDX-License-Identifier: MIT
// WordCounterViewController is the statistics panel that counts: it fills its model, here or through the
// counting service, and shows the model's strings in the eight labels. Its base class places the labels.
// Create it with std::make_shared; a count in progress releases its references on the main thread.
// Thread: main; may be created on any.  Owner: the panel's host, and a count that has not been sent yet.
#pragma once

#include "platform/session_bus/RemoteObjectConnection.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/views/Window.h"
#include "presentation/BaseWordCounterViewController.h"
#include "presentation/WordCounterServiceProtocol.h"
#include "text_statistics/WordCounterModel.h"

#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

class WordCounterViewController : public BaseWordCounterViewController,
                                  public std::enable_shared_from_this<WordCounterViewController> {
    Q_OBJECT
    Q_PROPERTY(bool isAsyncCountOperationInProgress READ isAsyncCountOperationInProgress WRITE
            setIsAsyncCountOperationInProgress NOTIFY isAsyncCountOperationInProgressChanged)

public:
    /// Called on the main thread. Must not be empty: calling it then ends the process.
    using Completion = std::function<void()>;

    /// interfaceFile: as for the base class.
    explicit WordCounterViewController(QString interfaceFile = panelInterfaceFile());
    WordCounterViewController(const WordCounterViewController &) = delete;
    WordCounterViewController &operator=(const WordCounterViewController &) = delete;
    /// Releases the connection, which is invalidated after the last pending answer. For a count that has been
    /// sent, the completion still runs, and nothing else happens.
    ~WordCounterViewController() override;

    /// Never null, and always the same one.
    [[nodiscard]] const std::shared_ptr<WordCounterModel> &wordCounter() const { return m_wordCounter; }

    /// From the moment an asynchronous count is accepted until its completion has run, or until
    /// stopAsyncOperation().
    [[nodiscard]] bool isAsyncCountOperationInProgress() const { return m_isAsyncCountOperationInProgress; }
    void setIsAsyncCountOperationInProgress(bool isInProgress);

    // Count in this process, in the next turn of the event loop.
    /// Counts as text in Helvetica of 12 points, two turns later, and logs a warning every time.
    void updateStatsWithString(const QString &string);
    void updateStatsWithAttributedString(const AttributedString &attributedString);
    void updateStatsWithDocXMetaData(const QBYDocxMetaData &docXMetaData);

    /// Shows the record before it returns.
    void updateInterfaceWithPrepopulatedStats(const QBYWordCounterStats &stats);

    /// Writes the model's strings into the labels, including hidden ones, and sizes each to its text. Does
    /// not move the labels: see repositionLabels().
    void updateLabels();

    // Count in the service. While a count is in progress, and while its completion runs, another one is
    // silently dropped: its completion is never called. A service that never answers keeps the panel busy
    // until stopAsyncOperation().
    void asyncUpdateStatsWithAttributedString(
        const AttributedString &attributedString, Completion completion);
    /// A file that cannot be read is sent as an absent document; the panel shows what the service answers.
    void asyncUpdateStatsDocXFileURL(const QUrl &fileURL, Completion completion);

    /// Abandons the count in progress. If it has been sent, the service drops it, its counts are not shown
    /// and its completion is not called. If not, it is sent only if another count opens a connection first.
    void stopAsyncOperation();

    /// The title, then the texts of the visible labels on a line each, with "-" for every bullet. Neither
    /// title nor texts are escaped. The line break is "</br>".
    [[nodiscard]] QString htmlRepresentationWithTitle(
        const std::optional<QString> &title, bool fullHTMLDocument) const;
    /// The full HTML document as styled text; absent if it contains an unpaired surrogate or the reader
    /// rejects it.
    [[nodiscard]] std::optional<AttributedString> attributedStringRepresentationWithTitle(
        const std::optional<QString> &title) const;

    /// Connects the panel to its window: Copy copies the statistics once there are any, screen readers read
    /// them as the window's summary, and the labels are fitted when the window's text metrics change. The
    /// host fits them itself before it shows the window.
    void serve(Window &window);

Q_SIGNALS:
    void isAsyncCountOperationInProgressChanged();

private:
    using Data = WordCounterServiceProtocol::Data;
    using CountRequest = void (WordCounterServiceProtocol::*)(
        Data, WordCounterServiceProtocol::Results) const;
    using HeldCompletion = std::shared_ptr<Completion>; // destroyed on the main thread

    void _setUpOnInit();
    void openConnectionToWordCounterService();
    void asyncUpdateStats(const QString &queueLabel, const std::function<Data()> &makeData,
        CountRequest request, Completion completion);
    /// Whether this is still the panel's connection.
    [[nodiscard]] bool isOpen(const std::weak_ptr<RemoteObjectConnection> &connection) const;
    void send(CountRequest request, const Data &data, const HeldCompletion &completion);
    void showReply(const QBYWordCounterStats &stats, const Completion &completion);

    [[nodiscard]] MimeContent statisticsToCopy() const;
    [[nodiscard]] QString statisticsToRead() const;

    std::shared_ptr<WordCounterModel> m_wordCounter;
    bool m_isAsyncCountOperationInProgress = false;
    std::shared_ptr<RemoteObjectConnection>
        _connectionToWordCounterService; ///< shared with the pending answers
};
