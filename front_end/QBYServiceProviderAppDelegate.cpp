// SPDX-License-Identifier: MIT
#include "front_end/QBYServiceProviderAppDelegate.h"

#include "documents/loading/PasteboardText.h"
#include "platform/system/FileURL.h"
#include "watching/FileTypes.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

/// The file: URL with the path only; absent for other URLs.
std::optional<QUrl> filePathURL(const QUrl &url)
{
    const QByteArray path = pathOfFileURL(url);
    return path.isEmpty() ? std::nullopt : std::optional(fileURLOfPath(path));
}

bool isOfAcceptedKind(const QUrl &url)
{
    return QBYExtension::doesConformToRTFFileUTI(url) || QBYExtension::doesConformToRTFDFileUTI(url)
        || QBYExtension::doesConformToPlainTextFileUTI(url) || QBYExtension::doesConformToDocXFileUTI(url)
        || QBYExtension::isDocumentOfAnotherKind(url) || QBYExtension::isReadableDocument(url);
}

QList<QUrl> acceptedFiles(const QList<QUrl> &urls)
{
    QList<QUrl> accepted;
    for (const QUrl &url : urls) {
        const std::optional<QUrl> file = filePathURL(url);
        if (file && isOfAcceptedKind(*file))
            accepted.append(*file);
    }
    return accepted;
}

// Given text, deliberately odd.
QString readingFailure()
{
    return QCoreApplication::translate("front_end", "Quillbay failed to read retrieve text.");
}

/// Hands the text to its window, unless that was closed meanwhile.
void finishReading(const std::weak_ptr<QBYServiceProviderShowStatsWindowController> &window,
    const std::optional<AttributedString> &text, Desktop &desktop)
{
    const auto controller = window.lock();
    if (!controller)
        return;
    if (text) {
        controller->setAttributedStringToCount(*text);
    } else {
        desktop.presentError(readingFailure()); // first: without a window the program would exit
        controller->closeButtonAction(nullptr);
    }
}

void setError(QString *error, const QString &message)
{
    if (error)
        *error = message;
}

} // namespace

QBYServiceProviderAppDelegate::QBYServiceProviderAppDelegate(
    WatchSurroundings surroundings, std::function<void(ServicesProvider &provider)> setServicesProvider)
    : m_surroundings(std::move(surroundings))
    , m_setServicesProvider(std::move(setServicesProvider))
{
}

QBYServiceProviderAppDelegate::~QBYServiceProviderAppDelegate() = default;

void QBYServiceProviderAppDelegate::applicationDidFinishLaunching()
{
    m_setServicesProvider(*this);
}

void QBYServiceProviderAppDelegate::wordCountSelectedTextService(
    const Pasteboard &pasteboard, const QString & /*userData*/, QString *error)
{
    using Text = std::optional<AttributedString>;
    Desktop &desktop = m_surroundings.desktop;
    QBYServiceProviderShowStatsWindowController::TextReading reading(QStringLiteral("selection"),
        [pasteboard](const std::stop_token &stop) { return readAttributedString(pasteboard, stop); });
    if (const Text *const text = reading.quickResult()) {
        if (*text)
            open(std::make_shared<QBYServiceProviderShowStatsWindowController>(
                     **text, desktop, m_surroundings.clock),
                pasteboard);
        else
            setError(error, readingFailure());
        return;
    }
    const auto controller =
        std::make_shared<QBYServiceProviderShowStatsWindowController>(desktop, m_surroundings.clock);
    open(controller, pasteboard);
    reading.passResultTo([&desktop, window = std::weak_ptr(controller)](
                             const Text &text) { finishReading(window, text, desktop); });
    controller->setReading(std::move(reading));
}

void QBYServiceProviderAppDelegate::open(const StatWindowController &controller, const Pasteboard &pasteboard)
{
    controller->setDocumentName(lastPathComponent(pasteboard.readFileURLs().value(0)));
    m_statWindowControllerForSelectedText.push_back(controller);
    controller->setDelegate(this);
    controller->showWindow(nullptr);
}

void QBYServiceProviderAppDelegate::watchTheTextFileService(
    const Pasteboard &pasteboard, const QString & /*userData*/, QString *error)
{
    const QList<QUrl> urls = pasteboard.readFileURLs();
    if (urls.isEmpty()) {
        setError(error, QCoreApplication::translate("front_end", "Quillbay failed to retrieve file urls."));
        return;
    }
    const QList<QUrl> accepted = acceptedFiles(urls);
    if (accepted.isEmpty()) {
        setError(error, QCoreApplication::translate("front_end", "Quillbay failed to validate file urls."));
        return;
    }
    for (const QUrl &url : accepted)
        watch(url);
}

void QBYServiceProviderAppDelegate::watch(const QUrl &url)
{
    if (const auto existing = _existingWatchTextFileControllerForURL(url)) {
        existing->showWindow();
        return;
    }
    const auto controller = WatchTextFileMenuBarController::initWithoutMenuItem(m_surroundings);
    controller->setDelegate(this);
    controller->watchWithTextFileURL(url);
    m_watchTextFileControllers.push_back(controller);
    controller->showWindow();
    controller->setShowsCloseButton(false);
}

std::shared_ptr<WatchTextFileMenuBarController>
QBYServiceProviderAppDelegate::_existingWatchTextFileControllerForURL(const QUrl &url) const
{
    const std::optional<QUrl> file = filePathURL(url);
    const auto found = std::ranges::find_if(m_watchTextFileControllers,
        [&](const auto &controller) { return file && controller->urlBeingWatched() == *file; });
    return found == m_watchTextFileControllers.end() ? nullptr : *found;
}

void QBYServiceProviderAppDelegate::serviceProviderShowStatsWindowControllerDidClose(
    QBYServiceProviderShowStatsWindowController &controller)
{
    std::erase_if(
        m_statWindowControllerForSelectedText, [&](const auto &known) { return known.get() == &controller; });
    reportFinished();
}

void QBYServiceProviderAppDelegate::watchTextFileMenuBarControllerDidFinish(
    WatchTextFileMenuBarController &controller)
{
    std::erase_if(m_watchTextFileControllers, [&](const auto &known) { return known.get() == &controller; });
    reportFinished();
}

void QBYServiceProviderAppDelegate::reportFinished()
{
    if (m_finishedHandler)
        m_finishedHandler();
}
