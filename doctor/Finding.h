// SPDX-License-Identifier: MIT
// Finding is what a check has found out about the user's desktop, in plain words: it may be pasted into a
// report of a fault, so it names no document.
// Thread: any; a value.
#pragma once

#include <QCoreApplication>
#include <QString>

#include <utility>

enum class Severity {
    Good,
    Note, ///< worth knowing; nothing is lost
    Limited, ///< something works in part only
    Broken, ///< something that Quillbay is for does not work
};

struct Finding {
    Severity severity;
    QString text; ///< sentences
    QString remedy = {}; ///< what to do, in sentences; empty for none
};

/// The translations of findings: Doctor::tr().
class Doctor {
    Q_DECLARE_TR_FUNCTIONS(Doctor)
};

inline Finding goodFinding(QString text)
{
    return {Severity::Good, std::move(text)};
}

inline Finding noteFinding(QString text, QString remedy = {})
{
    return {Severity::Note, std::move(text), std::move(remedy)};
}

inline Finding limitedFinding(QString text, QString remedy)
{
    return {Severity::Limited, std::move(text), std::move(remedy)};
}

inline Finding brokenFinding(QString text, QString remedy)
{
    return {Severity::Broken, std::move(text), std::move(remedy)};
}
