// SPDX-License-Identifier: MIT
// notification_server [silent]: the notification server of a desktop (org.freedesktop.Notifications).
// Prints "ready", and then a line for each notice: program|icon|summary|body. A silent one owns the name and
// does not answer.
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <cstdio>

namespace {

class Server : public QDBusVirtualObject {
public:
    explicit Server(bool isSilent)
        : m_isSilent(isSilent)
    {
    }

    [[nodiscard]] QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        if (message.member() != QStringLiteral("Notify")
            || message.signature() != QStringLiteral("susssasa{sv}i"))
            return false;
        message.setDelayedReply(true);
        if (m_isSilent)
            return true;
        const QVariantList arguments = message.arguments();
        std::printf("%s|%s|%s|%s\n", qPrintable(arguments[0].toString()), qPrintable(arguments[2].toString()),
            qPrintable(arguments[3].toString()), qPrintable(arguments[4].toString()));
        std::fflush(stdout);
        return bus.send(message.createReply(QVariant(++m_number)));
    }

private:
    const bool m_isSilent;
    uint m_number = 0;
};

} // namespace

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    Server server(argumentCount > 1);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerVirtualObject(QStringLiteral("/org/freedesktop/Notifications"), &server)
        || !bus.registerService(QStringLiteral("org.freedesktop.Notifications")))
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
