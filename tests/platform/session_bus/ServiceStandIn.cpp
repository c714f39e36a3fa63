// SPDX-License-Identifier: MIT
#include "tests/platform/session_bus/ServiceStandIn.h"

#include "tests/harness/QuillbayTest.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString busName = QStringLiteral("ServiceStandIn");

void write(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        ADD_FAILURE() << "cannot write " << path.toStdString();
}

} // namespace

ServiceStandIn::ServiceStandIn(const QString &serviceName, const QByteArrayList &plan)
    : m_folder(TestHome::instance().root() + QStringLiteral("/stand-in"))
    , m_bus(QDBusConnection::connectToBus(SessionBus::start(), busName))
{
    const QString services = TestHome::instance().data() + QStringLiteral("/dbus-1/services");
    QDir().mkpath(services);
    QDir().mkpath(m_folder);
    write(m_folder + QStringLiteral("/plan"), plan.join('\n'));
    write(m_folder + QStringLiteral("/notes"), {});
    write(services + u'/' + serviceName + QStringLiteral(".service"),
        QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2 %1 '%3'\n")
            .arg(serviceName, testProgram(QStringLiteral("service_stand_in")), m_folder)
            .toLocal8Bit());
    m_bus.call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ReloadConfig")));
}

ServiceStandIn::~ServiceStandIn()
{
    quit();
    for (const Request &request : requests())
        EXPECT_TRUE(waitUntil([this, &request] { return !isOnTheBus(request.service); }));
    QDBusConnection::disconnectFromBus(busName);
}

std::vector<ServiceStandIn::Request> ServiceStandIn::requests() const
{
    QFile file(m_folder + QStringLiteral("/notes"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    std::vector<Request> requests;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        if (!line.endsWith('\n'))
            break; // being written
        const QJsonObject note = QJsonDocument::fromJson(line).object();
        const auto value = [&note](const char *key) { return note.value(QLatin1StringView(key)); };
        const auto text = [&value](const char *key) { return value(key).toString(); };
        const auto number = [&value](const char *key) { return value(key).toInteger(-1); };
        requests.push_back({
            .path = text("path"),
            .interface = text("interface"),
            .method = text("method"),
            .signature = text("signature"),
            .client = text("client"),
            .service = text("service"),
            .size = number("size"),
            .hash = text("hash").toLatin1(),
            .seals = static_cast<int>(number("seals")),
            .length = number("length"),
            .isAbsent = value("absent").toBool(),
            .options = value("options").toObject().toVariantMap(),
        });
    }
    return requests;
}

void ServiceStandIn::waitForRequests(size_t count) const
{
    EXPECT_TRUE(waitUntil([this, count] { return requests().size() >= count; })) << "requests: " << count;
}

bool ServiceStandIn::isOnTheBus(const QString &client) const
{
    return m_bus.interface()->isServiceRegistered(client);
}

void ServiceStandIn::send(const QString &signal) const
{
    m_bus.send(QDBusMessage::createSignal(
        QStringLiteral("/"), QStringLiteral("com.quillbay.test.ServiceStandIn"), signal));
}
