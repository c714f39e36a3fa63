// SPDX-License-Identifier: MIT
#include "platform/views/widgets/DesktopAppearance.h"

#include "platform/logging/LogChannel.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceSpace = QStringLiteral("org.freedesktop.appearance");
const QString colorSchemeKey = QStringLiteral("color-scheme");

/// Read() wraps the value into a variant more than the signal does.
QVariant unwrapped(QVariant value)
{
    constexpr int mostWrappings = 3;
    for (int i = 0; i < mostWrappings && value.metaType() == QMetaType::fromType<QDBusVariant>(); ++i)
        value = value.value<QDBusVariant>().variant();
    return value;
}

/// Anything but the two known numbers is no preference, as the portal's documentation asks.
ColorScheme colorSchemeOf(const QVariant &value)
{
    const QVariant number = unwrapped(value);
    if (number.metaType() != QMetaType::fromType<uint>())
        return ColorScheme::NoPreference;
    switch (number.toUInt()) {
    case 1:
        return ColorScheme::Dark;
    case 2:
        return ColorScheme::Light;
    default:
        return ColorScheme::NoPreference;
    }
}

} // namespace

DesktopAppearance::DesktopAppearance(const QDBusConnection &sessionBus)
    : m_bus(sessionBus)
{
    if (!m_bus.isConnected()) {
        LogChannel::standard().info(u"No session bus, so the desktop's colours stay as they are");
        return;
    }
    // As a message: a slot with a QDBusVariant is not found before the program has used that type otherwise.
    m_bus.connect(
        service, path, interface, QStringLiteral("SettingChanged"), this, SLOT(takeSetting(QDBusMessage)));
    // A portal that comes late, or again, may have another answer.
    auto *const watcher =
        new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &DesktopAppearance::ask);
    ask();
}

void DesktopAppearance::ask()
{
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    question.setArguments({appearanceSpace, colorSchemeKey});
    auto *const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &DesktopAppearance::takeAnswer);
}

void DesktopAppearance::takeAnswer(QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *watcher;
    if (reply.isError())
        LogChannel::standard().info(
            u"The desktop tells no colour scheme: {}", {publicly(reply.error().message())});
    else
        setColorScheme(colorSchemeOf(QVariant::fromValue(reply.value())));
}

void DesktopAppearance::takeSetting(const QDBusMessage &signal)
{
    const QVariantList arguments = signal.arguments();
    if (arguments.value(0) == appearanceSpace && arguments.value(1) == colorSchemeKey)
        setColorScheme(colorSchemeOf(arguments.value(2)));
}

void DesktopAppearance::setColorScheme(ColorScheme scheme)
{
    if (scheme == m_colorScheme)
        return;
    m_colorScheme = scheme;
    applyColorScheme(scheme);
    Q_EMIT colorSchemeDidChange();
}
