// SPDX-License-Identifier: MIT
#include "platform/views/widgets/DesktopAppearance.h"

#include "platform/logging/LogChannel.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QPalette>
#include <utility>

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceSpace = QStringLiteral("org.freedesktop.appearance");
const QString colorSchemeKey = QStringLiteral("color-scheme");

/// Read() wraps the value in one variant more than the signal does.
QVariant unwrapVariant(QVariant value)
{
    constexpr int maxWrappings = 3;
    for (int i = 0; i < maxWrappings && value.metaType() == QMetaType::fromType<QDBusVariant>(); ++i)
        value = value.value<QDBusVariant>().variant();
    return value;
}

/// Any other number means no preference, as the portal's documentation requires.
ColorScheme colorSchemeOf(const QVariant &value)
{
    const QVariant number = unwrapVariant(value);
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

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

struct SchemeColors {
    QRgb window;
    QRgb base;
    QRgb button;
    QRgb text;
    QRgb disabledText;
    QRgb mid;
    QRgb link;
};

constexpr SchemeColors darkColors{
    0xff2b2b2e, 0xff1f1f22, 0xff3a3a3e, 0xffeaeaec, 0xff85858a, 0xff4e4e54, 0xff7ab4f5};
constexpr SchemeColors lightColors{
    0xfff2f2f3, 0xffffffff, 0xffe8e8ea, 0xff1c1c1e, 0xff8e8e93, 0xffc4c4c8, 0xff0b5cc4};
constexpr QRgb highlight = 0xff2f6fd0;

QPalette paletteOf(const SchemeColors &colors)
{
    QPalette palette(QColor(colors.button), QColor(colors.window));
    for (const QPalette::ColorRole role :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, QColor(colors.text));
        palette.setColor(QPalette::Disabled, role, QColor(colors.disabledText));
    }
    palette.setColor(QPalette::PlaceholderText, QColor(colors.disabledText));
    palette.setColor(QPalette::Base, QColor(colors.base));
    palette.setColor(QPalette::AlternateBase, QColor(colors.window));
    palette.setColor(QPalette::ToolTipBase, QColor(colors.base));
    palette.setColor(QPalette::Mid, QColor(colors.mid));
    palette.setColor(QPalette::Link, QColor(colors.link));
    palette.setColor(QPalette::Highlight, QColor(highlight));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

} // namespace

void applyColorScheme(ColorScheme scheme)
{
    QApplication::setPalette(QPalette()); // back to that of the desktop
    if (scheme == ColorScheme::NoPreference)
        return;
    const bool wantsDark = scheme == ColorScheme::Dark;
    if (isDark(QApplication::palette()) != wantsDark)
        QApplication::setPalette(paletteOf(wantsDark ? darkColors : lightColors));
}

DesktopAppearance::DesktopAppearance(QDBusConnection sessionBus)
    : m_bus(std::move(sessionBus))
{
    if (!m_bus.isConnected()) {
        LogChannel::standard().info(u"No session bus; keeping the desktop's colours");
        return;
    }
    // QtDBus finds a slot with a QDBusVariant only once the program has used that type, so the slot takes the
    // whole message.
    m_bus.connect(
        service, path, interface, QStringLiteral("SettingChanged"), this, SLOT(handleSetting(QDBusMessage)));
    // A portal that starts later, or restarts, may give another answer.
    auto *const watcher =
        new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &DesktopAppearance::requestColorScheme);
    requestColorScheme();
}

void DesktopAppearance::requestColorScheme()
{
    QDBusMessage request = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    request.setArguments({appearanceSpace, colorSchemeKey});
    auto *const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(request), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &DesktopAppearance::handleReply);
}

void DesktopAppearance::handleReply(QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *watcher;
    if (reply.isError())
        LogChannel::standard().info(
            u"Cannot read the desktop's colour scheme: {}", {publicly(reply.error().message())});
    else
        setColorScheme(colorSchemeOf(QVariant::fromValue(reply.value())));
}

void DesktopAppearance::handleSetting(const QDBusMessage &signal)
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
