// SPDX-License-Identifier: MIT
#include "doctor/Examination.h"

#include <QSet>

#include <algorithm>
#include <exception>
#include <future>
#include <memory>
#include <thread>

namespace {

Finding timeoutFinding(const Check &check)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(check.timeout).count();
    return brokenFinding(
        Doctor::tr("The check \"%1\" did not end within %2 seconds: what it asks does not answer.")
            .arg(QLatin1StringView(check.name))
            .arg(seconds),
        Doctor::tr("Log out and in again; if that does not help, restart the computer."));
}

Finding runWithTimeout(const Check &check)
{
    // Shared with the thread, which may outlive this call.
    const auto promise = std::make_shared<std::promise<Finding>>();
    std::future<Finding> finding = promise->get_future();
    std::thread([promise, run = check.run] {
        try {
            promise->set_value(run());
        } catch (...) {
            promise->set_exception(std::current_exception());
        }
    }).detach();
    if (finding.wait_for(check.timeout) != std::future_status::ready)
        return timeoutFinding(check);
    return finding.get();
}

Finding runCheck(const Check &check)
{
    try {
        return runWithTimeout(check);
    } catch (const std::exception &) { // no memory, or no thread
        return brokenFinding(
            Doctor::tr("There is not enough memory for the check \"%1\".").arg(QLatin1StringView(check.name)),
            Doctor::tr("Close some programs and run this again."));
    }
}

} // namespace

Severity examine(const std::vector<Check> &checks, const FindingReceiver &receive)
{
    Severity worst = Severity::Good;
    QSet<QByteArray> brokenChecks;
    for (const Check &check : checks) {
        const auto missing = std::find_if(check.needs.begin(), check.needs.end(),
            [&](const char *needed) { return brokenChecks.contains(needed); });
        if (missing != check.needs.end()) {
            brokenChecks.insert(check.name);
            receive(check,
                noteFinding(Doctor::tr("The check \"%1\" was left out, because \"%2\" failed.")
                                .arg(QLatin1StringView(check.name), QLatin1StringView(*missing))));
            continue;
        }
        const Finding finding = runCheck(check);
        if (finding.severity == Severity::Broken)
            brokenChecks.insert(check.name);
        worst = std::max(worst, finding.severity);
        receive(check, finding);
    }
    return worst;
}
