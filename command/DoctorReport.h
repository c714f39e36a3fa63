// SPDX-License-Identifier: MIT
// DoctorReport formats the findings of "quillbay doctor" as lines for people or as JSON; the command prints
// them. The user's home folder is "~" in both, since they are pasted into reports of faults.
// Thread: main.
#pragma once

#include "doctor/Checks.h"

#include <QByteArray>
#include <QByteArrayList>

/// The exit status, and what JSON says; the statuses are a part of the help.
int exitStatusOf(Severity severity);
const char *nameOf(Severity severity);

/// The severity, the name of the check and the sentences, in lines of at most 80 characters where words allow
/// it, with line ends.
QByteArray textOfFinding(const Check &check, const Finding &finding);

/// A sentence on all findings.
QByteArray summaryOf(Severity worst);

/// A JSON object without a line end.
QByteArray jsonOfFinding(const Check &check, const Finding &finding);
/// The object of all findings, on a line of its own. findings: as of jsonOfFinding().
QByteArray jsonOfExamination(Severity worst, const QByteArrayList &findings);
