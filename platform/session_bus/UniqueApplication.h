// SPDX-License-Identifier: MIT
// UniqueApplication makes a program run once in the user's session: the first process owns a bus name, and a
// later one passes its files to it, over the interface org.freedesktop.Application. What the
// program does with them is left to its owner.
// Thread: main.  Owner: main() of the program; outlived by its QCoreApplication.
#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QVariantMap>

class UniqueApplication : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    struct Request {
        QList<QUrl> files{};
        QByteArray activationToken{}; ///< empty for none
    };

    enum class Role {
        First, ///< owns the name: requests of later processes arrive as requested()
        Later, ///< the first process has the request; this one has nothing left to do
        Alone, ///< there is no bus, or the first process does not answer: runs without the name
    };

    /// The maximum wait for the first process to accept a request.
    static constexpr int defaultTimeout = 5000; // milliseconds
    /// Further files of a request are ignored.
    static constexpr qsizetype maxFiles = 1000;

    /// busName: that of the desktop file, such as "com.example.Editor"; the object's path follows from it.
    explicit UniqueApplication(QString busName, int timeout = defaultTimeout);
    /// Releases the name.
    ~UniqueApplication() override;

    /// Acquires the name, or passes the request to the process that has it.
    [[nodiscard]] Role start(const Request &request);

Q_SIGNALS:
    void requested(const UniqueApplication::Request &request);

public Q_SLOTS:
    // Messages of the bus.
    Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
    Q_SCRIPTABLE void Open(const QStringList &uris, const QVariantMap &platformData);
    /// There are no actions: does what Activate() does.
    Q_SCRIPTABLE void ActivateAction(
        const QString &action, const QVariantList &parameters, const QVariantMap &platformData);

private:
    [[nodiscard]] QString objectPath() const;
    [[nodiscard]] bool passOn(const Request &request) const;

    const QString m_busName;
    const int m_timeout;
};
