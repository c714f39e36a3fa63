// SPDX-License-Identifier: MIT
// "quillbay doctor": prints what works on this desktop, what does not, and what to do about it.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/DoctorReport.h"
#include "doctor/Examination.h"

#include <cstdio>

namespace {

constexpr char doctorHelp[] = R"(Usage: quillbay doctor [--json]

Tries what Quillbay needs of this computer and of the desktop, and prints a line for
each: ok, note (worth knowing), limited or broken, with what it has found and what to
do about it. It starts the programs of Quillbay as the other commands do, and opens
no window. The output names no document, and your home folder is ~ in it, so that
you can paste it into a report of a fault.

  --json      print a JSON object with the worst severity and the list of findings:
              the name of each check, its severity, the text and the remedy
  -h, --help  print this help and exit

Exit status: 0 if everything works, 1 if something is limited, 2 after wrong usage,
3 if something is broken.
)";

int printFindings()
{
    const Severity worst = examine(allChecks(), [](const Check &, const Finding &finding) {
        print(textOfFinding(finding));
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

int runDoctorCommand(int wordCount, char **words)
{
    const std::optional<CommandWords> wanted = CommandWords::parse("doctor", {"json"}, wordCount, words);
    if (!wanted)
        return wrongUsageStatus;
    if (wanted->wantsHelp())
        return printText(doctorHelp);
    if (!wanted->operands.isEmpty())
        return reportWrongUsage("doctor", "doctor takes no file");
    const int status = wanted->switches.contains("json") ? printJson() : printFindings();
    return std::fflush(stdout) == 0 ? status : 1;
}
