// SPDX-License-Identifier: MIT
// File names that look like markup, wherever a window shows them.
#include "platform/views/widgets/LabelText.h"

#include "platform/views/Controls.h"
#include "tests/platform/views/widgets/ShownWindow.h"

#include <QLabel>
#include <QTextDocument>
#include <QToolTip>

namespace {

const QStringList markup{QStringLiteral("<h1>x.txt"), QStringLiteral("<b>bold</b>.txt"),
    QStringLiteral("a &lt; b.txt"), QStringLiteral("  <p style='x'>.txt"),
    QStringLiteral("<!DOCTYPE html>.txt")};

QString withoutJoiners(QString text)
{
    return text.remove(QChar(0x2060));
}

} // namespace

TEST(PlainText, AToolTipIsNeverInterpretedAsMarkup)
{
    for (const QString &text : markup) {
        EXPECT_TRUE(Qt::mightBeRichText(text)) << text.toStdString();
        EXPECT_FALSE(Qt::mightBeRichText(plainToolTip(text))) << text.toStdString();
        EXPECT_EQ(withoutJoiners(plainToolTip(text)), text);
    }
    for (const char *const text : {"", "novel.txt", "5 < 6 & 7.txt", "R&D <3.txt"})
        EXPECT_EQ(plainToolTip(QString::fromLatin1(text)), QString::fromLatin1(text));
}

TEST(PlainText, TheToolTipOfATitleShowsItsMarkup)
{
    const ShownWindow shown({100, 200, 300, 150});
    auto &label = shown.add<Label>("label", {50, 50, 200, 20});
    label.setToolTip(QStringLiteral("<h1>x.txt"));
    shown.show();
    TestDisplay::xdotool(shown.pointerTo(100, 60));
    const auto tip = []() -> const QLabel * {
        for (const QWidget *const widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible() && widget->inherits("QTipLabel"))
                return qobject_cast<const QLabel *>(widget);
        }
        return nullptr;
    };
    EXPECT_TRUE(waitUntil([&] {
        TestDisplay::xdotool({QStringLiteral("mousemove_relative"), QStringLiteral("1"), QStringLiteral("0"),
            QStringLiteral("mousemove_relative"), QStringLiteral("--"), QStringLiteral("-1"),
            QStringLiteral("0")});
        return tip() != nullptr || waitUntil([&] { return tip() != nullptr; });
    }));
    ASSERT_TRUE(tip());
    EXPECT_FALSE(Qt::mightBeRichText(tip()->text()));
    EXPECT_EQ(withoutJoiners(tip()->text()), QStringLiteral("<h1>x.txt"));
    EXPECT_EQ(shown.widgetOf(label).accessibleDescription(), QStringLiteral("<h1>x.txt"));
    QToolTip::hideText();
}

TEST(PlainText, AWindowTitleKeepsPlaceholders)
{
    const ShownWindow shown({100, 200, 300, 150});
    shown.window().setTitle(QStringLiteral("<b>[*]a[*][*].txt"));
    shown.show();
    EXPECT_EQ(shown.widget().windowHandle()->title(), QStringLiteral("<b>[*]a[*][*].txt"));
}
