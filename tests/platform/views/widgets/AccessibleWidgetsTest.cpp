// SPDX-License-Identifier: MIT
// What Qt tells screen readers of a window.
#include "platform/views/Controls.h"
#include "tests/platform/views/widgets/ShownWindow.h"

#include <QAccessible>

namespace {

QAccessibleInterface &interfaceOf(QWidget &widget)
{
    return *QAccessible::queryAccessibleInterface(&widget);
}

} // namespace

TEST(AccessibleWidgets, AWindowIsAWindowWithItsTitleAndSummary)
{
    const ShownWindow shown({100, 200, 300, 150});
    shown.window().setTitle(QStringLiteral("novel.txt"));
    shown.window().setSummaryProvider([] { return QStringLiteral("Words: 3"); });
    const QAccessibleInterface &window = interfaceOf(shown.widget());
    EXPECT_EQ(window.role(), QAccessible::Window);
    EXPECT_EQ(window.text(QAccessible::Name), QStringLiteral("novel.txt"));
    EXPECT_EQ(window.text(QAccessible::Description), QStringLiteral("Words: 3"));
}

TEST(AccessibleWidgets, ANoticeTakesThePlaceOfTheSummary)
{
    const ShownWindow shown({100, 200, 300, 150});
    shown.window().setSummaryProvider([] { return QStringLiteral("Words: 3"); });
    shown.window().setNotice(QStringLiteral("Still waiting."));
    EXPECT_EQ(interfaceOf(shown.widget()).text(QAccessible::Description), QStringLiteral("Still waiting."));
    shown.window().setNotice({});
    EXPECT_EQ(interfaceOf(shown.widget()).text(QAccessible::Description), QStringLiteral("Words: 3"));
}

TEST(AccessibleWidgets, ASpinnerIsVisibleOnlyWhileItTurns)
{
    const ShownWindow shown({100, 200, 300, 150});
    auto &spinner = shown.add<ProgressIndicator>("spinner", {10, 10, 20, 20});
    shown.show();
    const QAccessibleInterface &accessible = interfaceOf(shown.widgetOf(spinner));
    EXPECT_TRUE(accessible.state().invisible);
    spinner.startAnimation();
    EXPECT_FALSE(accessible.state().invisible);
    EXPECT_TRUE(accessible.state().busy);
    EXPECT_EQ(accessible.role(), QAccessible::ProgressBar);
}
