// SPDX-License-Identifier: MIT
#include "front_end/provider/QBYServiceProviderAppDelegate.h"

#include <utility>

QBYServiceProviderAppDelegate::QBYServiceProviderAppDelegate(
    Desktop &desktop, std::function<void(ServicesProvider &provider)> setServicesProvider)
    : m_desktop(desktop)
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
    const std::optional<AttributedString> text = pasteboard.readAttributedString();
    if (!text) {
        if (error)
            *error = QStringLiteral("Quillbay failed to read retrieve text."); // as users know it
        return;
    }
    const auto controller = std::make_shared<QBYServiceProviderShowStatsWindowController>(*text, m_desktop);
    m_statWindowControllerForSelectedText.push_back(controller);
    controller->setDelegate(this);
    controller->showWindow(nullptr);
}

void QBYServiceProviderAppDelegate::watchTheTextFileService(
    const Pasteboard & /*pasteboard*/, const QString & /*userData*/, QString * /*error*/)
{
}

void QBYServiceProviderAppDelegate::serviceProviderShowStatsWindowControllerDidClose(
    QBYServiceProviderShowStatsWindowController &controller)
{
    std::erase_if(
        m_statWindowControllerForSelectedText, [&](const auto &known) { return known.get() == &controller; });
    if (m_somethingEnded)
        m_somethingEnded();
}
