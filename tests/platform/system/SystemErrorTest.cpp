// SPDX-License-Identifier: MIT
#include "platform/system/SystemError.h"

#include "tests/harness/QuillbayTest.h"

#include <cerrno>
#include <clocale>

namespace {

class SystemError : public QuillbayTest { };

} // namespace

TEST_F(SystemError, HasAnEnglishTextUnderEveryLocale)
{
    EXPECT_EQ(systemErrorText(ENOENT), QStringLiteral("No such file or directory"));
    setLocale("de_DE.UTF-8");
    const bool isTranslated = QString::fromUtf8(std::strerror(ENOENT)) != systemErrorText(ENOENT);
    EXPECT_EQ(systemErrorText(ENOENT), QStringLiteral("No such file or directory"));
    SKIP_WITHOUT_PACKAGE(isTranslated, "locales, with de_DE.UTF-8");
}

TEST_F(SystemError, WithoutATextIsItsNumber)
{
    EXPECT_EQ(systemErrorText(12'345), QStringLiteral("12345"));
}
