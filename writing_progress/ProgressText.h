// SPDX-License-Identifier: MIT
// Goals, limits and progress as sentences in the user's language.
// Thread: any.
#pragma once

#include "writing_progress/GoalProgress.h"
#include "writing_progress/PlanTable.h"

#include <QString>

/// As "5,000 words".
QString amountText(Statistic statistic, quint64 amount);

/// As "50,000 words until 11/30/26" or "500 words a day".
QString goalText(const Goal &goal);

/// As "At most 5,000 words".
QString limitText(const Limit &limit);

/// What is still to do, as "7,308 words remaining: 812 words a day until 11/30/26".
QString progressText(const Goal &goal, const GoalProgress &progress);

/// With the sign of the change, as "+812".
QString changeText(qint64 change);

/// name: of the document or folder.
QString milestoneText(const Milestone &milestone, const QString &name);
