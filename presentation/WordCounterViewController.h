// SPDX-License-Identifier: MIT
// WordCounterViewController is the statistics panel that counts: it feeds its model, asks the counting
// service, and writes what the model says into the eight labels. Where the labels lie is its base class's
// business. Thread: main; made by any.  Owner: the panel's host, and the work that has not yet been sent to
// the service. Made with std::make_shared; wherever the last reference is let go in here, the panel ends its
// life on the main thread.
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
    /// Runs on the main thread. Required: an empty one ends the process when it is due.
    using Completion = std::function<void()>;

    /// interfaceFile: as for the base class.
    explicit WordCounterViewController(QString interfaceFile = panelInterfaceFile());
    WordCounterViewController(const WordCounterViewController &) = delete;
    WordCounterViewController &operator=(const WordCounterViewController &) = delete;
    /// Lets the connection go. A count that has been sent is still answered: its completion runs, and nothing
    /// else happens. The connection is invalidated with the last answer.
    ~WordCounterViewController() override;

    /// Never null, and always the same one.
    [[nodiscard]] const std::shared_ptr<WordCounterModel> &wordCounter() const { return m_wordCounter; }

    /// From the moment an asynchronous count is accepted until its completion has run, or until
    /// stopAsyncOperation().
    [[nodiscard]] bool isAsyncCountOperationInProgress() const { return m_isAsyncCountOperationInProgress; }
    void setIsAsyncCountOperationInProgress(bool isInProgress);

    // Counts here, in a later turn of the event loop.
    /// In Helvetica of 12 points, and two turns later, with a warning in the log every time.
    void updateStatsWithString(const QString &string);
    void updateStatsWithAttributedString(const AttributedString &attributedString);
    void updateStatsWithDocXMetaData(const QBYDocxMetaData &docXMetaData);

    /// Shows the record before it returns.
    void updateInterfaceWithPrepopulatedStats(const QBYWordCounterStats &stats);

    /// Writes the model's strings into the labels, hidden ones too, and lets each take the size of its text.
    /// Where the labels lie stays: see repositionLabels().
    void updateLabels();

    // Count in the service. While a count is in progress another one is dropped without a trace, its
    // completion is never called; so is one that a completion starts. A service that never answers keeps the
    // panel busy until stopAsyncOperation().
    void asyncUpdateStatsWithAttributedString(
        const AttributedString &attributedString, Completion completion);
    /// A file that cannot be read is sent as an absent one; the panel shows what the service says to that.
    void asyncUpdateStatsDocXFileURL(const QUrl &fileURL, Completion completion);

    /// Abandons the count in progress: once it has been sent, its counts are not shown and its completion is
    /// not called. One that has not been sent is not sent without a connection; the next count opens one.
    void stopAsyncOperation();

    /// What the visible labels show, a line each, with "-" for every bullet, below the title. Neither title
    /// nor texts are escaped. The line break is "</br>", byte for byte.
    [[nodiscard]] QString htmlRepresentationWithTitle(
        const std::optional<QString> &title, bool fullHTMLDocument) const;
    /// The full document of the above as styled text; absent where UTF-8 has no form for it (half a surrogate
    /// pair) or the reader refuses it.
    [[nodiscard]] std::optional<AttributedString> attributedStringRepresentationWithTitle(
        const std::optional<QString> &title) const;

    /// Puts the panel to use in that window: the statistics are what the user copies from it, once they have
    /// been counted, and the labels are fitted whenever texts take another size on its screen. The host fits
    /// them itself before it shows the window.
    void serve(Window &window);

Q_SIGNALS:
    void isAsyncCountOperationInProgressChanged();

private:
    using Data = WordCounterServiceProtocol::Data;
    using CountRequest = void (WordCounterServiceProtocol::*)(
        Data, WordCounterServiceProtocol::Results) const;
    using HeldCompletion = std::shared_ptr<Completion>; // ends its life on the main thread

    void _setUpOnInit();
    void openConnectionToWordCounterService();
    void asyncUpdateStats(const QString &queueLabel, const std::function<Data()> &makeData,
        CountRequest request, Completion completion);
    /// Whether this is still the panel's connection.
    [[nodiscard]] bool isOpen(const std::weak_ptr<RemoteObjectConnection> &connection) const;
    void send(CountRequest request, const Data &data, const HeldCompletion &completion);
    void showReply(const RemoteReply &reply, const Completion &completion);

    [[nodiscard]] MimeContent statisticsToCopy() const;

    std::shared_ptr<WordCounterModel> m_wordCounter;
    bool m_isAsyncCountOperationInProgress = false;
    std::shared_ptr<RemoteObjectConnection>
        _connectionToWordCounterService; // shared with the pending answers
};
