// SPDX-License-Identifier: MIT
// suite_killer SUITE ROUNDS SEED: in every round a child writes to the suite and acknowledges each write on a
// pipe, is killed at a random point, and the suite is looked at. Prints what was found wrong and fails, or
// prints how many writes were acknowledged.
#include "platform/defaults/UserDefaults.h"

#include <QFile>
#include <QStandardPaths>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <random>
#include <string>

namespace {

const QString countKey = QStringLiteral("count");
const QString paddingKey = QStringLiteral("padding");

// Of changing length, so that the file grows and shrinks by pages.
QString paddingFor(qint64 count)
{
    return {(count * 7919) % 20'000, QChar(u'a' + static_cast<char16_t>(count % 26))};
}

[[noreturn]] void writeUntilKilled(const QString &suite, qint64 first, int acknowledgements)
{
    UserDefaults defaults(suite);
    for (qint64 count = first;; ++count) {
        if (!defaults.setObjects({{countKey, count}, {paddingKey, paddingFor(count)}}))
            ::_exit(1);
        if (::write(acknowledgements, &count, sizeof count) != sizeof count)
            ::_exit(2);
    }
}

// Empty if SQLite finds no damage.
std::string integrityFault(const QString &suite)
{
    const QByteArray path =
        QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
            + QStringLiteral("/quillbay/%1.sqlite3").arg(suite));
    sqlite3 *database = nullptr;
    std::string result = "cannot be opened";
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_open_v2(path.constData(), &database, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK
        && sqlite3_prepare_v2(database, "PRAGMA integrity_check", -1, &statement, nullptr) == SQLITE_OK
        && sqlite3_step(statement) == SQLITE_ROW)
        result = reinterpret_cast<const char *>(sqlite3_column_text(statement, 0));
    sqlite3_finalize(statement);
    sqlite3_close(database);
    return result == "ok" ? std::string() : result;
}

// Reads so many acknowledgements, waits a little without giving up the processor, kills the child, and
// returns the last write that it acknowledged before it died.
qint64 lastAcknowledged(pid_t child, int acknowledgements, int wanted, std::chrono::microseconds more)
{
    qint64 last = 0;
    for (int i = 0; i < wanted; ++i) {
        if (::read(acknowledgements, &last, sizeof last) != sizeof last)
            break;
    }
    const auto until = std::chrono::steady_clock::now() + more;
    while (std::chrono::steady_clock::now() < until) { }
    ::kill(child, SIGKILL);
    while (::read(acknowledgements, &last, sizeof last) == sizeof last) { }
    return last;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    if (argumentCount != 4)
        return 2;
    const QString suite = QString::fromLocal8Bit(arguments[1]);
    const int rounds = std::stoi(arguments[2]);
    std::mt19937 random(static_cast<unsigned>(std::stoi(arguments[3])));
    std::uniform_int_distribution<int> wanted(0, 3);
    std::uniform_int_distribution<int> more(0, 4000);
    qint64 acknowledged = 0;
    if (!UserDefaults(suite).setObjects({{countKey, acknowledged}, {paddingKey, paddingFor(0)}}))
        return 1;
    qint64 present = 0;
    for (int round = 0; round < rounds; ++round) {
        int channel[2];
        if (::pipe(channel) != 0)
            return 1;
        const pid_t child = ::fork();
        if (child == 0)
            writeUntilKilled(suite, present + 1, channel[1]);
        ::close(channel[1]);
        const qint64 last =
            lastAcknowledged(child, channel[0], wanted(random), std::chrono::microseconds(more(random)));
        ::close(channel[0]);
        int status = 0;
        ::waitpid(child, &status, 0);
        const UserDefaults defaults(suite);
        const qint64 before = std::max(present, last);
        present = defaults.integerForKey(countKey);
        const std::string fault = integrityFault(suite);
        const bool whole = defaults.objectForKey(paddingKey) == DefaultsValue(paddingFor(present));
        if (!WIFSIGNALED(status) || present < before || present > before + 1 || !whole || !fault.empty()) {
            std::printf("round %d: status %d, acknowledged %lld, present %lld, whole %d, integrity %s\n",
                round, status, static_cast<long long>(before), static_cast<long long>(present), whole,
                fault.c_str());
            return 1;
        }
        acknowledged = before;
    }
    std::printf("%lld\n", static_cast<long long>(acknowledged));
    return 0;
}
