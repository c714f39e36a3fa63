// SPDX-License-Identifier: MIT
#include "platform/shortcuts/Accelerator.h"
#include "platform/shortcuts/GVariantText.h"
#include "platform/shortcuts/SettingsProgram.h"

#include <gtest/gtest.h>

namespace {

QKeySequence keys(const char *text)
{
    return {QString::fromLatin1(text), QKeySequence::PortableText};
}

QString text(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace

TEST(Accelerator, IsWrittenAsGtkDoes)
{
    EXPECT_EQ(acceleratorOf(keys("Meta+Shift+W")), text("<Shift><Super>w"));
    EXPECT_EQ(acceleratorOf(keys("Ctrl+Alt+F9")), text("<Primary><Alt>F9"));
    EXPECT_EQ(acceleratorOf(keys("Meta+PgDown")), text("<Super>Page_Down"));
    EXPECT_EQ(acceleratorOf(keys("Meta+A, Meta+B")), text("<Super>a"));
    EXPECT_EQ(acceleratorOf({}), QString());
}

TEST(Accelerator, IsReadInAnyOrderAndCase)
{
    EXPECT_EQ(keysOfAccelerator(text("<super><Shift>W")), keys("Meta+Shift+W"));
    EXPECT_EQ(keysOfAccelerator(text("<Mod4><Control>space")), keys("Meta+Ctrl+Space"));
    EXPECT_EQ(keysOfAccelerator(text("<Alt>plus")), keys("Alt++"));
}

TEST(Accelerator, OfUnknownKeysIsEmpty)
{
    for (const char *const accelerator : {"", "<Super", "<Hyper>w", "disabled", "XF86AudioPlay", "<Super>"})
        EXPECT_EQ(keysOfAccelerator(text(accelerator)), QKeySequence()) << accelerator;
    EXPECT_EQ(acceleratorOf(QKeySequence(Qt::Key_VolumeUp)), QString());
}

TEST(GVariantText, KeepsStringsWithQuotes)
{
    const QStringList strings{text("/a/'b'/"), text("c\\d"), text("\"")};
    EXPECT_EQ(stringsInGVariant(gvariantOf(strings)), strings);
    EXPECT_EQ(stringsInGVariant(text("@as []")), QStringList());
    EXPECT_EQ(stringsInGVariant(text("\"it's\"")), QStringList(text("it's")));
}

TEST(SettingsProgram, QuotesWordsForAShell)
{
    EXPECT_EQ(
        commandLineOf({text("/usr/bin/quillbay"), text("selection")}), text("/usr/bin/quillbay selection"));
    EXPECT_EQ(commandLineOf({text("/o'r s/q")}), text("'/o'\\''r s/q'"));
}

TEST(SettingsProgram, ReportsAMissingProgram)
{
    EXPECT_EQ(
        runSettingsProgram(text("/missing"), {}).error(), text("/missing: is not installed; install it"));
}
