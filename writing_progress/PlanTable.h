// SPDX-License-Identifier: MIT
// PlanTable has the goals and limits of documents and folders, and which of them the user knows to be
// reached.
// Thread: that of the store.  Owner: ProgressStore; used only while the file is read or written.
#pragma once

#include "platform/database/DatabaseFile.h"
#include "writing_progress/DayTotal.h"
#include "writing_progress/Goal.h"

#include <map>
#include <vector>

/// What a count has brought about; each is reported once, to whoever recorded the count.
struct Milestone {
    enum class Kind { GoalReached, LimitPassed };

    Kind kind;
    QByteArray path; ///< of the document, or of the folder with the plan
    Plan plan;
};

class PlanTable {
public:
    using Failure = DatabaseFile::Failure;
    using Plans = std::map<QByteArray, Plan>;

    explicit PlanTable(const DatabaseFile &file)
        : m_file(file)
    {
    }

    static QByteArray schema();

    Failure read(Plans &plans) const;
    /// An empty plan removes the path's. Milestones are reported again.
    Failure set(const QByteArray &path, const Plan &plan) const;

    /// Appends what is reached for the first time: a goal for a day once a day, others once for all.
    Failure noteMilestones(
        const QByteArray &path, const DayTotal &total, std::vector<Milestone> &milestones) const;

private:
    /// Whether the column did not have that value before.
    Failure note(const QByteArray &path, const char *column, const QString &value, bool &isNew) const;

    const DatabaseFile &m_file;
};
