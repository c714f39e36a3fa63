// SPDX-License-Identifier: MIT
// A watcher and its document. WatcherViews.cpp has its views.
#include "watching/windows/WatchTextFileMenuBarController.h"

#include "documents/loading/DocumentLoader.h"
#include "platform/logging/LogChannel.h"
#include "platform/system/FileURL.h"
#include "platform/system/MainQueue.h"
#include "preferences/QBYUserDefaultsController.h"
#include "speech/ApplicationExtension.h"
#include "translations/EnglishTexts.h"
#include "watching/FileTypes.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>

#include <utility>

namespace {

// Indices of the alert's buttons.
constexpr int closeButton = 0;

Alert failureAlert(const QUrl &document)
{
    return {.messageText = QCoreApplication::translate("watching/windows", "Failed to load text."),
        .informativeText = QCoreApplication::translate("watching/windows",
            "Quillbay was unable to update the stats of the text file currently being watched. "
            "This usually means the file was either renamed or deleted. You can choose another "
            "text file to watch or cancel."),
        .buttons = {QCoreApplication::translate("watching/windows", "Close"),
            QCoreApplication::translate("watching/windows", "Choose another file.")},
        .windowTitle = document.adjusted(QUrl::StripTrailingSlash).fileName()};
}

} // namespace

WatchTextFileMenuBarController::WatchTextFileMenuBarController(WatchSurroundings surroundings)
    : m_surroundings(std::move(surroundings))
{
}

WatchTextFileMenuBarController::~WatchTextFileMenuBarController() = default;

void WatchTextFileMenuBarController::watchWithTextFileURL(const QUrl &textFileURL)
{
    const QUrl url = textFileURL.adjusted(QUrl::StripTrailingSlash); // an RTFD folder may have one
    setTitleOfPanels(lastPathComponent(url));
    m_isChangeUncounted = false;
    m_isCountRequested = true;
    readAndCount(url);
    if (m_watchFileModel) {
        m_watchFileModel->setTextFileURLToWatch(url, true);
        return;
    }
    m_watchFileModel = std::make_unique<WatchTextFileModel>(
        url, this, m_surroundings.applicationActivity, m_surroundings.clock);
    m_watchFileModel->beginWatchingTextFile();
}

QUrl WatchTextFileMenuBarController::urlBeingWatched() const
{
    return m_watchFileModel ? m_watchFileModel->presentedItemURL() : QUrl();
}

void WatchTextFileMenuBarController::readAndCount(const QUrl &url)
{
    m_firstReading.reset();
    if (QBYExtension::doesConformToDocXFileUTI(url)) {
        countDocX(url);
        return;
    }
    m_firstReading.emplace(
        QStringLiteral("watched file"), [path = pathOfFileURL(url)](const std::stop_token &stop) {
            return loadDocument(path, {.readsPdf = true, .stop = stop});
        });
    if (const Text *const text = m_firstReading->quickResult())
        return countFirst(*text);
    m_watchTextFileViewControllerForPopover->setSpinActivityIndicator(true);
    m_firstReading->passResultTo([this](const Text &text) { countFirst(text); });
}

void WatchTextFileMenuBarController::countFirst(Text text)
{
    m_firstReading.reset(); // keeps the text, too
    m_watchTextFileViewControllerForPopover->setSpinActivityIndicator(false);
    if (text)
        count(std::move(text).value());
    else
        LogChannel::standard().error(u"Error loading attributed string {}",
            {publicly(inEnglish([&] { return causeText(text.error()); }))});
}

void WatchTextFileMenuBarController::count(
    const AttributedString &attributedString, const std::function<void()> &whenCounted)
{
    m_watchTextFileViewControllerForPopover->wordCounterViewController()
        ->asyncUpdateStatsWithAttributedString(
            attributedString, [completion = makeCompletion(), whenCounted] {
                completion();
                whenCounted();
            });
}

void WatchTextFileMenuBarController::countDocX(const QUrl &url)
{
    WordCounterViewController &statistics =
        *m_watchTextFileViewControllerForPopover->wordCounterViewController();
    m_isChangeUncounted = statistics.isAsyncCountOperationInProgress();
    statistics.asyncUpdateStatsDocXFileURL(url, makeCompletion());
}

WordCounterViewController::Completion WatchTextFileMenuBarController::makeCompletion()
{
    return [weakSelf = weak_from_this()] {
        if (const auto self = weakSelf.lock())
            self->countDidComplete();
    };
}

void WatchTextFileMenuBarController::countDidComplete()
{
    const QBYWordCounterStats stats = m_watchTextFileViewControllerForPopover->wordCounterViewController()
                                          ->wordCounter()
                                          ->statsRepresentation();
    // In the window form this is the counting panel itself, which is harmless.
    if (m_contentViewControllerForDetachableWindow)
        m_contentViewControllerForDetachableWindow->wordCounterViewController()
            ->updateInterfaceWithPrepopulatedStats(stats);
    // Once, not at every save: screen readers would interrupt the writing.
    if (std::exchange(m_isCountRequested, false) && m_detachableWindowForPopover)
        m_detachableWindowForPopover->announce();
    record(stats);
    sayWordCountIfPreferred(stats.numberOfWords);
}

void WatchTextFileMenuBarController::record(const QBYWordCounterStats &stats)
{
    m_recordedPath = pathOfFileURL(urlBeingWatched());
    if (!m_surroundings.progressRecorder || m_recordedPath.isEmpty())
        return;
    const QFileInfo file(QFile::decodeName(m_recordedPath));
    m_surroundings.progressRecorder->record(
        {.path = m_recordedPath, .stats = stats, .saved = file.lastModified()});
}

/// A panel drops requests while it counts, and a Word document is not polled: the file coordination has to
/// report the last change again.
void WatchTextFileMenuBarController::countingStateDidChange()
{
    const auto &statistics = *m_watchTextFileViewControllerForPopover->wordCounterViewController();
    if (!statistics.isAsyncCountOperationInProgress() && std::exchange(m_isChangeUncounted, false))
        FileCoordinator::reportChangeAgain(m_watchFileModel.get());
}

void WatchTextFileMenuBarController::sayWordCountIfPreferred(quint64 wordCount)
{
    if (!QBYUserDefaultsController::shouldSayWordCountOutloudOnSaveInWatchFileMode()
        || wordCount == m_lastCalledOutWordCount)
        return;
    m_lastCalledOutWordCount = wordCount;
    QBYExtension::sayWordCountOutloud(wordCount, m_surroundings.desktop, m_surroundings.speechLaunchPath);
}

void WatchTextFileMenuBarController::currentlyWatchedTextFileDidUpdateWithAttributedString(
    const AttributedString &attributedString, WatchTextFileModel &watchModel)
{
    m_firstReading.reset();
    m_watchTextFileViewControllerForPopover->setSpinActivityIndicator(false);
    count(attributedString, [model = QPointer(&watchModel), number = watchModel.contentNumber()] {
        if (model)
            model->contentWasCounted(number);
    });
}

void WatchTextFileMenuBarController::currentlyWatchedDocXFileDidUpdateWithDocxData(
    const QUrl &docxData, WatchTextFileModel & /*watchModel*/)
{
    countDocX(docxData);
}

void WatchTextFileMenuBarController::currentlyWatchedTextFileWasRenamed(
    const QString &newName, WatchTextFileModel & /*watchModel*/)
{
    setTitleOfPanels(newName);
    if (m_surroundings.progressRecorder && !m_recordedPath.isEmpty())
        m_surroundings.progressRecorder->move(m_recordedPath, pathOfFileURL(urlBeingWatched()));
}

void WatchTextFileMenuBarController::currentlyWatchedTextFileDidFailToLoadAttribedText(
    WatchTextFileModel &watchModel)
{
    m_isChangeUncounted = false;
    m_firstReading.reset();
    watchModel.stopWatchingTextFile();
    closeViews();
    m_surroundings.desktop.beep();
    // Queued, so that the model's call returns first.
    MainQueue::async([self = shared_from_this()] { self->askWhatToDo(); });
}

void WatchTextFileMenuBarController::askWhatToDo()
{
    m_surroundings.desktop.runAlert(failureAlert(urlBeingWatched()), [self = shared_from_this()](int button) {
        if (button == closeButton)
            self->watchTextFileViewControllerRequestedStop(nullptr);
        else
            self->chooseAnotherFile();
    });
}

void WatchTextFileMenuBarController::chooseAnotherFile()
{
    OpenPanel panel = QBYExtension::openPanelForTextFiles();
    panel.folder = urlBeingWatched().adjusted(QUrl::RemoveFilename);
    m_surroundings.desktop.beginOpenPanel(
        panel, [self = shared_from_this()](const std::optional<QList<QUrl>> &urls) {
            if (!urls || urls->isEmpty()) {
                self->watchTextFileViewControllerRequestedStop(nullptr);
                return;
            }
            // Deliberately reads nothing and keeps the title: the next change or poll updates the counts.
            if (self->m_watchFileModel)
                self->m_watchFileModel->setTextFileURLToWatch(
                    urls->first().adjusted(QUrl::StripTrailingSlash), true);
            self->statusBarButtonAction();
        });
}

void WatchTextFileMenuBarController::watchTextFileViewControllerRequestedStop(
    WatchTextFileViewController * /*panel*/)
{
    const auto self = shared_from_this(); // the delegate drops its reference
    if (m_watchFileModel)
        m_watchFileModel->stopWatchingTextFile();
    m_firstReading.reset();
    m_watchFileModel.reset();
    closeViews();
    m_watchTextFileViewControllerForPopover->wordCounterViewController()->stopAsyncOperation();
    m_statusItemInBar.reset();
    if (WatchTextFileMenuBarControllerDelegate *const receiver = m_delegate.get())
        receiver->watchTextFileMenuBarControllerDidFinish(*this);
}
