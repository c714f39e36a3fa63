// SPDX-License-Identifier: MIT
// GoalProgress says how far a goal is reached, and what is still to do for it each day.
// Thread: any; a value.
#pragma once

#include "writing_progress/DayTotal.h"
#include "writing_progress/Goal.h"

struct GoalProgress {
    quint64 done = 0; ///< of the total, or of the day
    quint64 amount = 1;
    /// Of a total with a deadline that has not passed: the amount for each day, today included, so that it is
    /// reached on the last one. Stays the same all day.
    std::optional<quint64> amountPerDay = {};
    bool isOverdue = false; ///< the deadline has passed and the goal is not reached

    [[nodiscard]] quint64 remaining() const { return done < amount ? amount - done : 0; }
    [[nodiscard]] bool isReached() const { return done >= amount; }
    /// 0 to 100; 100 only for a goal that is reached.
    [[nodiscard]] int percent() const;
};

GoalProgress progressOf(const Goal &goal, const DayTotal &today);

bool isPassed(const Limit &limit, const QBYWordCounterStats &counts);
