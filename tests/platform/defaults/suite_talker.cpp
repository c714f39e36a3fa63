// SPDX-License-Identifier: MIT
// suite_talker SUITE: a second process at a suite. Each line it reads is a request, each gets one line back:
//   get KEY           the value as text, or "absent"
//   set KEY TEXT      "done" or "failed"
//   fill PREFIX N     sets PREFIX0 to PREFIX(N-1) to their numbers; how many were written
//   quit              ends without waiting for the end of its input
// Before the first request it prints "ready".
#include "platform/defaults/UserDefaults.h"

#include <iostream>
#include <sstream>
#include <string>

namespace {

std::string asText(const DefaultsValue &value)
{
    if (const auto *text = std::get_if<QString>(&value))
        return text->toStdString();
    if (const auto *number = std::get_if<double>(&value))
        return QString::number(*number).toStdString();
    return std::to_string(integerValue(value));
}

int filled(UserDefaults &defaults, const std::string &prefix, int count)
{
    int written = 0;
    for (int i = 0; i < count; ++i)
        written += defaults.setObject(qint64{i}, QString::fromStdString(prefix) + QString::number(i)) ? 1 : 0;
    return written;
}

std::string answer(UserDefaults &defaults, std::istringstream &request)
{
    std::string verb;
    std::string key;
    request >> verb >> key;
    if (verb == "get") {
        const auto value = defaults.objectForKey(QString::fromStdString(key));
        return value ? asText(*value) : "absent";
    }
    if (verb == "set") {
        std::string text;
        request >> text;
        return defaults.setObject(QString::fromStdString(text), QString::fromStdString(key)) ? "done"
                                                                                             : "failed";
    }
    int count = 0;
    request >> count;
    return std::to_string(filled(defaults, key, count));
}

} // namespace

int main(int argumentCount, char **arguments)
{
    if (argumentCount != 2)
        return 2;
    UserDefaults defaults(QString::fromLocal8Bit(arguments[1]), std::chrono::seconds(30));
    std::cout << "ready" << '\n' << std::flush;
    for (std::string line; std::getline(std::cin, line) && line != "quit";) {
        std::istringstream request(line);
        std::cout << answer(defaults, request) << '\n' << std::flush;
    }
    return 0;
}
