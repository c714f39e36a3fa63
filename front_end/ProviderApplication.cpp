// SPDX-License-Identifier: MIT
#include "front_end/ProviderApplication.h"

#include "platform/logging/LogChannel.h"

#include <QCoreApplication>

ProviderApplication::ProviderApplication(const WatchSurroundings &surroundings)
    : m_desktop(surroundings.desktop)
    , m_delegate(surroundings, [this](ServicesProvider &provider) { m_isOffered = offer(provider); })
{
    m_delegate.setSomethingEndedHandler([this] { leaveSoonIfUnused(); });
    m_desktop.setAskingEndedHandler([this] { leaveSoonIfUnused(); });
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
        // Not quit(): that asks every window to close, and the first that does not keeps the program alive.
        const auto busIsLost = [] {
            LogChannel::standard().notice(u"The session bus was lost");
            QCoreApplication::exit(0);
        };
        m_registration = std::make_unique<ServicesRegistration>(
            provider, [this](const QByteArray &token) { requestBegins(token); }, [this] { requestEnds(); },
            busIsLost);
    }
    return m_registration->start();
}

void ProviderApplication::requestBegins(const QByteArray &activationToken)
{
    m_hasBeenAsked = true;
    m_desktop.setActivationToken(activationToken);
}

void ProviderApplication::requestEnds()
{
    m_desktop.setActivationToken({});
    leaveSoonIfUnused();
}

void ProviderApplication::leaveSoonIfUnused()
{
    QMetaObject::invokeMethod(this, &ProviderApplication::leaveIfUnused, Qt::QueuedConnection);
}

void ProviderApplication::leaveIfUnused()
{
    if (!QBYServiceProviderAppDelegate::applicationShouldTerminateAfterLastWindowClosed() || isUsed())
        return;
    m_registration->giveNameAway();
    if (!isUsed()) {
        QCoreApplication::quit();
        return;
    }
    // A request has come in this very moment. The name is wanted back; if another process has it by now, that
    // one answers from now on, and this one shows what it has.
    m_isOffered = offer(m_delegate);
}

bool ProviderApplication::isUsed() const
{
    return !m_hasBeenAsked || m_delegate.isInUse() || m_desktop.isAskingUser();
}
