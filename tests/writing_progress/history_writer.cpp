// SPDX-License-Identifier: MIT
// Records counts that grow by one, each in a minute of its own, and prints each once it is recorded. Runs
// until it is killed.
#include "writing_progress/ProgressStore.h"

#include <cstdio>

int main()
{
    ProgressStore store;
    QDateTime now(QDate(2026, 11, 22), QTime(0, 0), Qt::UTC);
    if (!store.add({"/book/a.md"}))
        return 1;
    for (quint64 words = 1;; ++words) {
        now = now.addSecs(60);
        if (!store.record({.path = "/book/a.md", .stats = {.numberOfWords = words}}, now))
            return 1;
        std::printf("%llu\n", static_cast<unsigned long long>(words));
        std::fflush(stdout);
    }
}
