// SPDX-License-Identifier: MIT
// "quillbay doctor": prints what works on this desktop, what does not, and what to do about it.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/DoctorReport.h"
#include "doctor/Examination.h"
#include "platform/system/StandardOutput.h"

#include <cstdio>

namespace {

int printFindings()
{
    const Severity worst = examine(allChecks(), [](const Check &check, const Finding &finding) {
        print(textOfFinding(check, finding));
        std::fflush(stdout); // the next check may take a while
    });
    print(summaryOf(worst));
    return exitStatusOf(worst);
}

int printJson()
{
    QByteArrayList findings;
    const Severity worst = examine(allChecks(), [&findings](const Check &check, const Finding &finding) {
        findings.append(jsonOfFinding(check, finding));
    });
    print(jsonOfExamination(worst, findings));
    return exitStatusOf(worst);
}

} // namespace

int runDoctorCommand(const CommandWords &words)
{
    if (!words.operands.isEmpty())
        return reportWrongUsage("doctor", CommandText::tr("doctor takes no file"));
    const int status = words.switches.contains("json") ? printJson() : printFindings();
    return std::fflush(stdout) == 0 ? status : 1;
}
