// SPDX-License-Identifier: MIT
#include "front_end/ProviderApplication.h"

#include "platform/logging/LogChannel.h"

#include <QCoreApplication>

ProviderApplication::ProviderApplication(const WatchSurroundings &surroundings)
    : m_desktop(surroundings.desktop)
    , m_delegate(surroundings, [this](ServicesProvider &provider) { m_isOffered = offer(provider); })
{
    m_delegate.setFinishedHandler([this] { scheduleQuitIfUnused(); });
    m_desktop.setAskingEndedHandler([this] { scheduleQuitIfUnused(); });
}

ProviderApplication::~ProviderApplication()
{
    m_desktop.setAskingEndedHandler({});
}

bool ProviderApplication::start()
{
    m_delegate.applicationDidFinishLaunching();
    return m_isOffered;
}

bool ProviderApplication::offer(ServicesProvider &provider)
{
    if (!m_registration) {
        // Not quit(): that asks every window to close, and a window that refuses keeps the program running.
        const auto handleLostBus = [] {
            LogChannel::standard().notice(u"Lost the session bus; exiting");
            QCoreApplication::exit(0);
        };
        m_registration = std::make_unique<ServicesRegistration>(
            provider, [this](const QByteArray &token) { beginRequest(token); }, [this] { endRequest(); },
            handleLostBus);
    }
    return m_registration->start();
}

void ProviderApplication::beginRequest(const QByteArray &activationToken)
{
    m_hasHadRequest = true;
    m_desktop.setActivationToken(activationToken);
}

void ProviderApplication::endRequest()
{
    m_desktop.setActivationToken({});
    scheduleQuitIfUnused();
}

void ProviderApplication::scheduleQuitIfUnused()
{
    QMetaObject::invokeMethod(this, &ProviderApplication::quitIfUnused, Qt::QueuedConnection);
}

void ProviderApplication::quitIfUnused()
{
    if (!QBYServiceProviderAppDelegate::applicationShouldTerminateAfterLastWindowClosed() || isUsed())
        return;
    m_registration->giveNameAway();
    if (!isUsed()) {
        QCoreApplication::quit();
        return;
    }
    // A request arrived at the last moment. Takes the name back; if another process owns it by now, that
    // process serves further requests, and this one only keeps its windows.
    m_isOffered = offer(m_delegate);
}

bool ProviderApplication::isUsed() const
{
    return !m_hasHadRequest || m_delegate.isInUse() || m_desktop.isAskingUser();
}
