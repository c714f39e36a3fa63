// SPDX-License-Identifier: MIT
// service_stand_in NAME FOLDER: a service for tests of its clients. It answers as planned by the test and
// records the requests; ServiceStandIn writes the plan and reads the notes.
//
// The k-th line of FOLDER/plan is the answer to the k-th request; the last line also to all later requests:
//
//     answer N…      N… as unsigned numbers of 64 bits
//     twice N…       the same, and once more with other numbers
//     depart N…      the same, and then the service exits
//     text           an answer that is a text
//     error NAME     an error
//     hold           nothing, until the signal "release" comes: then 1 2 3 4 5 6 7 8
//     crash          the service dies
//     leave          the service releases its name and never answers
//     move           the service releases its name, and answers as after "hold"
//
// For every request FOLDER/notes gets a line of JSON. The signal "quit" makes the service exit.
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

QList<QVariant> numbers(const QByteArrayList &words)
{
    QList<QVariant> all;
    for (const QByteArray &word : words)
        all.append(word.toULongLong());
    return all;
}

class Service : public QDBusVirtualObject {
    Q_OBJECT

public:
    Service(QString name, QString folder)
        : m_name(std::move(name))
        , m_folder(std::move(folder))
    {
    }

    [[nodiscard]] QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &request, const QDBusConnection &bus) override
    {
        const QByteArrayList step = nextStep();
        note(request);
        carryOut(step, request, bus);
        return true;
    }

public Q_SLOTS:
    void release()
    {
        for (const QDBusMessage &request : m_held)
            QDBusConnection::sessionBus().send(
                request.createReply(numbers({"1", "2", "3", "4", "5", "6", "7", "8"})));
        m_held.clear();
    }

private:
    [[nodiscard]] QByteArrayList lines(const QString &fileName) const
    {
        QFile file(m_folder + u'/' + fileName);
        QByteArrayList all;
        if (file.open(QIODevice::ReadOnly)) {
            while (!file.atEnd())
                all.append(file.readLine().trimmed());
        }
        return all;
    }

    [[nodiscard]] QByteArrayList nextStep() const
    {
        const QByteArrayList plan = lines(QStringLiteral("plan"));
        return plan.at(qMin(lines(QStringLiteral("notes")).size(), plan.size() - 1)).split(' ');
    }

    void note(const QDBusMessage &request) const
    {
        const QList<QVariant> arguments = request.arguments();
        QJsonObject note{{QStringLiteral("path"), request.path()},
            {QStringLiteral("interface"), request.interface()}, {QStringLiteral("method"), request.member()},
            {QStringLiteral("signature"), request.signature()}, {QStringLiteral("client"), request.service()},
            {QStringLiteral("service"), QDBusConnection::sessionBus().baseService()}};
        if (request.signature() == u"htba{sv}") {
            const int descriptor = arguments.at(0).value<QDBusUnixFileDescriptor>().fileDescriptor();
            QFile payload;
            if (payload.open(descriptor, QIODevice::ReadOnly)) {
                note.insert(QStringLiteral("size"), payload.size());
                QCryptographicHash hash(QCryptographicHash::Sha1);
                if (const uchar *bytes = payload.map(0, payload.size(), QFileDevice::MapPrivateOption))
                    hash.addData(QByteArrayView(bytes, payload.size()));
                note.insert(QStringLiteral("hash"), QString::fromLatin1(hash.result().toHex()));
            }
            note.insert(QStringLiteral("seals"), fcntl(descriptor, F_GET_SEALS));
            note.insert(QStringLiteral("length"), arguments.at(1).toLongLong());
            note.insert(QStringLiteral("absent"), arguments.at(2).toBool());
            note.insert(QStringLiteral("options"),
                QJsonObject::fromVariantMap(qdbus_cast<QVariantMap>(arguments.at(3))));
        }
        QFile notes(m_folder + QStringLiteral("/notes"));
        if (notes.open(QIODevice::Append))
            notes.write(QJsonDocument(note).toJson(QJsonDocument::Compact) + '\n');
    }

    void carryOut(const QByteArrayList &step, const QDBusMessage &request, QDBusConnection bus)
    {
        const QByteArray &verb = step.front();
        if (verb == "answer" || verb == "twice" || verb == "depart")
            bus.send(request.createReply(numbers(step.sliced(1))));
        if (verb == "twice")
            bus.send(request.createReply(numbers(QByteArrayList(8, "99"))));
        if (verb == "depart")
            QCoreApplication::quit();
        if (verb == "text")
            bus.send(request.createReply(QStringLiteral("eight")));
        if (verb == "error")
            bus.send(request.createErrorReply(QString::fromLatin1(step.at(1)), QStringLiteral("planned")));
        if (verb == "hold" || verb == "move")
            m_held.append(request);
        if (verb == "crash")
            ::kill(::getpid(), SIGKILL);
        if (verb == "leave" || verb == "move")
            bus.unregisterService(m_name);
    }

    const QString m_name;
    const QString m_folder;
    QList<QDBusMessage> m_held;
};

} // namespace

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    QDBusConnection bus = QDBusConnection::sessionBus();
    const QString name = QString::fromLocal8Bit(arguments[1]);
    Service service(name, QString::fromLocal8Bit(arguments[2]));
    const QString control = QStringLiteral("com.quillbay.test.ServiceStandIn");
    bus.registerVirtualObject(QStringLiteral("/"), &service, QDBusConnection::SubPath);
    bus.connect({}, {}, control, QStringLiteral("release"), &service, SLOT(release()));
    bus.connect({}, {}, control, QStringLiteral("quit"), &application, SLOT(quit()));
    bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), &application,
        SLOT(quit()));
    if (!bus.registerService(name))
        return 1;
    return QCoreApplication::exec();
}

#include "service_stand_in.moc"
