// SPDX-License-Identifier: MIT
#include "watching/WatchTextFileModel.h"

#include "platform/file_coordination/FileState.h"
#include "platform/system/FileURL.h"
#include "preferences/QBYLogger.h"
#include "translations/EnglishTexts.h"
#include "watching/FileTypes.h"

#include <QCoreApplication>
#include <QPointer>

namespace {

/// Programs write a PDF file over seconds, without a lock; it is whole after one of the next changes.
bool isHalfWrittenPdf(const DocumentError &error)
{
    return error.kind == DocumentKind::Pdf
        && (error.cause == DocumentError::Cause::Damaged || error.cause == DocumentError::Cause::WrongKind);
}

LogChannel &watchLog()
{
    return QBYLogger::watchFileModelLog();
}

} // namespace

WatchTextFileModel::WatchTextFileModel(const QUrl &textFileURLToWatch, WatchTextFileModelDelegate *delegate,
    ApplicationActivity &applicationActivity, Clock &clock)
    : m_applicationActivity(applicationActivity)
    , m_clock(clock)
    , m_isPresentedItemDocXFile(QBYExtension::doesConformToDocXFileUTI(textFileURLToWatch))
    , m_presentedItemURL(textFileURLToWatch)
    , m_delegate(delegate)
    , m_content(clock)
{
    connect(&m_applicationActivity, &ApplicationActivity::willResignActive, this,
        &WatchTextFileModel::applicationWillResignActiveNotification);
    connect(&m_applicationActivity, &ApplicationActivity::didBecomeActive, this,
        &WatchTextFileModel::applicationDidBecomeActive);
    openAccess();
}

WatchTextFileModel::~WatchTextFileModel() = default;

void WatchTextFileModel::openAccess()
{
    const Result<QByteArray, BookmarkError> bookmarkData = bookmarkDataOfURL(m_presentedItemURL);
    if (!bookmarkData) {
        watchLog().error(u"Error getting bookmark data: {}", {publicly(causeText(bookmarkData.error()))});
        return;
    }
    Result<SecurityScopedURL, BookmarkError> bookmarkURL = URLByResolvingBookmarkData(bookmarkData.value());
    if (!bookmarkURL) {
        watchLog().error(u"Error resolving bookmark: {}", {publicly(causeText(bookmarkURL.error()))});
        return;
    }
    m_bookmarkURL = std::move(bookmarkURL).value();
    if (!m_bookmarkURL->startAccessingSecurityScopedResource()) {
        watchLog().error(u"Failed to start accessing the security scoped resource!");
        return;
    }
    watchLog().debug(u"Started accessing the bookmark.");
    m_bookmarkData = bookmarkData.value();
}

void WatchTextFileModel::setDelegate(WatchTextFileModelDelegate *delegate)
{
    m_delegate = delegate;
    m_content.forget();
}

QThread *WatchTextFileModel::presentedItemOperationQueue() const
{
    return QCoreApplication::instance()->thread();
}

void WatchTextFileModel::beginWatchingTextFile()
{
    FileCoordinator::addFilePresenter(this, m_clock);
    m_coordinator = std::make_unique<FileCoordinator>(this, m_clock);
    m_isWatchingTextFile = true;
    m_timer.reset();
}

void WatchTextFileModel::stopWatchingTextFile()
{
    FileCoordinator::removeFilePresenter(this);
    m_coordinator.reset();
    m_timer.reset();
    if (const auto reading = m_reading.lock())
        reading->cancel();
    m_content.forget();
    m_isWatchingTextFile = false;
}

void WatchTextFileModel::setTextFileURLToWatch(
    const QUrl &textFileURLToWatch, bool andImmediatelyBeginWatching)
{
    stopWatchingTextFile();
    ++m_documents;
    m_presentedItemURL = textFileURLToWatch;
    if (andImmediatelyBeginWatching)
        beginWatchingTextFile();
}

void WatchTextFileModel::forceRead(QObject * /*sender*/)
{
    if (!m_isTextFileReadable) {
        // "reaquire" is deliberate.
        watchLog().debug(u"Force read called but we are waiting for a reaquire block to be called.");
        return;
    }
    if (!m_coordinator)
        return;
    const std::optional<CoordinationError> error = m_coordinator->coordinateReadingItemAtURL(
        m_presentedItemURL, [model = QPointer<WatchTextFileModel>(this)](const QUrl &newURL) {
            if (!model)
                return;
            if (model->m_isPresentedItemDocXFile)
                model->_reloadDocXInfoAndTellDelegateAtPresentedURL(newURL);
            else
                model->_reloadAttributedStringAndTellDelegateAtPresentedURL(newURL);
        });
    // The model may be destroyed by now.
    if (error)
        watchLog().error(u"NSFileCoordinator error: {}", {causeText(*error)});
}

void WatchTextFileModel::_reloadAttributedStringAndTellDelegateAtPresentedURL(const QUrl &url)
{
    if (url.isEmpty()) {
        watchLog().error(u"URL went nil!!!!");
        failToLoad();
        return;
    }
    const WatchedContent::Look look = m_content.look(pathOfFileURL(url));
    if (m_content.isUnchanged(look))
        return;
    const std::optional<Result<ChangedDocument, DocumentError>> loaded = load(url, m_content.knownHash(look));
    if (!loaded)
        return;
    const Result<ChangedDocument, DocumentError> &document = *loaded;
    if (!document && ((m_coordinator && m_coordinator->willRetry()) || isHalfWrittenPdf(document.error())))
        return;
    if (!document) {
        watchLog().error(u"failed to load attributed string for file at {}. Error {}",
            {publicly(m_presentedItemURL.toString()),
                publicly(inEnglish([&] { return causeText(document.error()); }))});
        failToLoad();
        return;
    }
    const std::optional<AttributedString> text = m_content.update(look, document.value());
    if (WatchTextFileModelDelegate *const receiver = text ? delegate() : nullptr)
        receiver->currentlyWatchedTextFileDidUpdateWithAttributedString(*text, *this);
}

std::optional<Result<ChangedDocument, DocumentError>> WatchTextFileModel::load(
    const QUrl &url, const std::optional<ContentHash> &known)
{
    using Document = Result<ChangedDocument, DocumentError>;
    const auto reading = std::make_shared<BackgroundWork<Document>>(
        QStringLiteral("watched file"), [path = pathOfFileURL(url), known](const std::stop_token &stop) {
            return loadIfChanged(path, known, stop);
        });
    m_reading = reading;
    const QPointer<WatchTextFileModel> self(this);
    const bool wasWatching = m_isWatchingTextFile;
    const QUrl document = m_presentedItemURL;
    const quint64 documents = m_documents;
    const Document *const loaded = reading->resultWhileEventsRun();
    if (!loaded || !self || documents != m_documents || wasWatching != m_isWatchingTextFile)
        return std::nullopt;
    if (!*loaded && document != m_presentedItemURL)
        return std::nullopt; // it was moved before it was read
    return *loaded;
}

void WatchTextFileModel::_reloadDocXInfoAndTellDelegateAtPresentedURL(const QUrl &url)
{
    const bool exists = fileStateAt(pathOfFileURL(url)).has_value();
    if (!exists && m_coordinator && m_coordinator->willRetry())
        return;
    if (!exists) {
        watchLog().error(u"nil QBYDocxMetaData....");
        failToLoad();
        return;
    }
    if (WatchTextFileModelDelegate *const receiver = delegate())
        receiver->currentlyWatchedDocXFileDidUpdateWithDocxData(url, *this);
}

/// Stops first: the delegate expects a model that has stopped.
void WatchTextFileModel::failToLoad()
{
    stopWatchingTextFile();
    if (WatchTextFileModelDelegate *const receiver = delegate())
        receiver->currentlyWatchedTextFileDidFailToLoadAttribedText(*this);
}

void WatchTextFileModel::applicationWillResignActiveNotification()
{
    _doStartTimerIfAllConditionsAreMet();
}

void WatchTextFileModel::applicationDidBecomeActive()
{
    m_timer.reset();
    watchLog().debug(u"We are active, kill poll timer.");
}

void WatchTextFileModel::_doStartTimerIfAllConditionsAreMet()
{
    if (!m_isWatchingTextFile || m_isPresentedItemDocXFile)
        return;
    m_timer = m_clock.makeTimer([this] { _nsTimerForceRead(); });
    m_timer->repeat(pollInterval);
    watchLog().debug(u"We are in the background, start the timer.");
}

void WatchTextFileModel::_nsTimerForceRead()
{
    if (m_isPresentedItemDocXFile) {
        watchLog().error(
            u"docx is the current file type. Timer shouldn't be used because it is a waste. Ignoring.");
        return;
    }
    forceRead(nullptr);
}

void WatchTextFileModel::presentedItemDidChange()
{
    forceRead(nullptr);
}

void WatchTextFileModel::presentedItemDidMoveToURL(const QUrl &newURL)
{
    stopWatchingTextFile();
    watchLog().debug(u"URL's don't match."); // deliberately logged at every move
    m_presentedItemURL = newURL;
    renewAccess();
    const QPointer<WatchTextFileModel> self(this);
    if (WatchTextFileModelDelegate *const receiver = delegate())
        receiver->currentlyWatchedTextFileWasRenamed(lastPathComponent(newURL), *this);
    if (!self)
        return;
    beginWatchingTextFile();
    if (m_applicationActivity.isActive())
        return;
    watchLog().debug(u"Get the timer started again if we are not the active app.");
    _doStartTimerIfAllConditionsAreMet();
}

void WatchTextFileModel::renewAccess()
{
    if (m_bookmarkData.isEmpty())
        return;
    Result<SecurityScopedURL, BookmarkError> bookmarkURL = URLByResolvingBookmarkData(m_bookmarkData);
    if (!bookmarkURL) {
        watchLog().error(u"Resolve bookmark in -presentedItemDidMoveToURL: failed with error: {}",
            {publicly(causeText(bookmarkURL.error()))});
        return;
    }
    m_bookmarkURL->stopAccessingSecurityScopedResource();
    m_bookmarkURL = std::move(bookmarkURL).value();
    if (!m_bookmarkURL->startAccessingSecurityScopedResource())
        watchLog().error(u"Failed to start accessing security scoped resource. Next attempt to read the text "
                         u"might fail.");
}

void WatchTextFileModel::accommodatePresentedItemDeletionWithCompletionHandler(
    const CompletionHandler &completionHandler)
{
    failToLoad();
    completionHandler(std::nullopt);
}

void WatchTextFileModel::relinquishPresentedItemToReader(const Block &reader)
{
    m_isTextFileReadable = false;
    watchLog().debug(u"relinquishPresentedItemToReader: called.");
    reader([model = QPointer<WatchTextFileModel>(this)] {
        if (model)
            model->m_isTextFileReadable = true;
        watchLog().debug(u"reader reacquirer block called.");
    });
}

void WatchTextFileModel::relinquishPresentedItemToWriter(const Block &writer)
{
    m_isTextFileReadable = false;
    watchLog().debug(u"relinquishPresentedItemToWriter: called.");
    writer([model = QPointer<WatchTextFileModel>(this)] {
        if (model)
            model->m_isTextFileReadable = true;
        watchLog().debug(u"writer reacquirer block called.");
    });
}
