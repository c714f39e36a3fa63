// SPDX-License-Identifier: MIT
#include "platform/system/Processors.h"

#include <gtest/gtest.h>

#include <sched.h>

#include <thread>

TEST(Processors, AThreadThatIsBoundToOneProcessorMayUseOne)
{
    int processors = 0;
    std::thread([&processors] {
        cpu_set_t set;
        CPU_ZERO(&set);
        CPU_SET(::sched_getcpu(), &set);
        ASSERT_EQ(::sched_setaffinity(0, sizeof set, &set), 0);
        processors = availableProcessors();
    }).join();
    EXPECT_EQ(processors, 1);
    EXPECT_GE(availableProcessors(), 1);
}

TEST(Processors, AQuotaIsRoundedUp)
{
    EXPECT_EQ(processorsOfQuota("150000 100000\n"), 2);
    EXPECT_EQ(processorsOfQuota("200000 100000\n"), 2);
    EXPECT_EQ(processorsOfQuota("1000 100000\n"), 1);
}

TEST(Processors, NoQuotaIsNoLimit)
{
    EXPECT_EQ(processorsOfQuota("max 100000\n"), std::nullopt);
    EXPECT_EQ(processorsOfQuota(""), std::nullopt);
    EXPECT_EQ(processorsOfQuota("0 0"), std::nullopt);
}
