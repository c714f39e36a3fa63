// SPDX-License-Identifier: MIT
// A second process that uses notifications.
//   notifier post NAME        posts and exits at once
//   notifier observe NAME     prints "ready", then "posted" for each notification
//   notifier talk             posts the name in each line that it reads and prints "done"; observes "echo"
//   notifier without-application NAME
#include "platform/session_bus/DistributedNotificationCenter.h"

#include <QCoreApplication>

#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

int main(int argumentCount, char **arguments)
{
    const std::string_view verb(argumentCount > 1 ? arguments[1] : "");
    const QString name = QString::fromLatin1(argumentCount > 2 ? arguments[2] : "");
    if (verb == "without-application") {
        DistributedNotificationCenter::post(name);
        return 0;
    }
    const QCoreApplication application(argumentCount, arguments);
    if (verb == "post") {
        DistributedNotificationCenter::post(name);
        std::_Exit(0); // nothing is left to destructors
    }
    if (verb == "observe") {
        const NotificationObserver observer(name);
        QObject::connect(&observer, &NotificationObserver::posted, &observer, [] {
            std::cout << "posted" << '\n' << std::flush;
        });
        std::cout << "ready" << '\n' << std::flush;
        return QCoreApplication::exec();
    }
    const NotificationObserver observer(QStringLiteral("echo"));
    std::cout << "ready" << '\n' << std::flush;
    for (std::string line; std::getline(std::cin, line);) {
        DistributedNotificationCenter::post(QString::fromStdString(line));
        std::cout << "done" << '\n' << std::flush;
    }
    return 0;
}
