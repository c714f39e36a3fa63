// SPDX-License-Identifier: MIT
// A second process of the product. It prints "ready", then reads requests, one a line, and prints "done" for
// each:
//   launch-and-hide STATISTIC   runs the first-launch step, then hides the statistic
//   hide STATISTIC              hides "lines" or "sentences"
//   ignore-endings              switches off the rule on the end of a sentence
#include "preferences/QBYUserDefaultsController.h"

#include <QCoreApplication>

#include <iostream>
#include <sstream>
#include <string>

namespace {

void hide(const std::string &statistic)
{
    if (statistic == "lines")
        QBYUserDefaultsController::setShowLineCountPreference(false);
    else if (statistic == "sentences")
        QBYUserDefaultsController::setShowSentencesCountPreference(false);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    std::cout << "ready" << '\n' << std::flush;
    for (std::string line; std::getline(std::cin, line);) {
        std::istringstream request(line);
        std::string verb;
        std::string statistic;
        request >> verb >> statistic;
        if (verb == "ignore-endings")
            QBYUserDefaultsController::setShouldEnforceTrailingPeriodForSentencesCount(false);
        if (verb == "launch-and-hide")
            QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
        hide(statistic);
        std::cout << "done" << '\n' << std::flush;
    }
    return 0;
}
