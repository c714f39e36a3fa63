// SPDX-License-Identifier: MIT
#include "preferences/QBYLogger.h"

#include "tests/harness/QuillbayTest.h"

using QBYLoggerTest = QuillbayTest;

TEST_F(QBYLoggerTest, TheChannelOfWatchedFilesIsCreatedOnceWithItsSubsystemAndCategory)
{
    const LogChannel &channel = QBYLogger::watchFileModelLog();
    EXPECT_EQ(channel.subsystem(), QStringLiteral("com.QBY.watchFileLog"));
    EXPECT_EQ(channel.category(), QStringLiteral("WatchFileModelLog"));
    EXPECT_EQ(&QBYLogger::watchFileModelLog(), &channel);
}
