// SPDX-License-Identifier: MIT
#include "platform/views/Controls.h"
#include "platform/views/widgets/LabelText.h"
#include "tests/platform/views/widgets/ShownWindow.h"

#include <QLabel>

#include <cmath>

namespace {

class UserFont {
public:
    explicit UserFont(double pointSize)
        : m_former(QApplication::font())
    {
        QFont font = m_former;
        font.setPointSizeF(pointSize);
        QApplication::setFont(font);
    }
    UserFont(const UserFont &) = delete;
    UserFont &operator=(const UserFont &) = delete;
    ~UserFont() { QApplication::setFont(m_former); }

private:
    QFont m_former;
};

} // namespace

TEST(TextMetrics, AFittedLabelShowsItsWholeText)
{
    const ShownWindow shown({100, 200, 600, 150});
    auto &label = shown.add<Label>("label", {10.5, 20.5, 1, 1});
    shown.show();
    for (const char *text : {"1", "1,234,567 words", "Wörter: 12 \u2013 fi", "语言 words", "W"}) {
        label.setStringValue(QString::fromUtf8(text));
        label.sizeToFit();
        const QLabel &widget = shown.widgetOf<QLabel>(label);
        EXPECT_EQ(QSizeF(widget.size()), label.frame().size()) << text;
        EXPECT_GE(widget.width(), widget.sizeHint().width()) << text;
        EXPECT_GE(widget.height(), widget.sizeHint().height()) << text;
        EXPECT_LE(widget.width(), widget.sizeHint().width() + 1) << text;
    }
    EXPECT_EQ(label.frame().topLeft(), QPointF(10.5, 20.5));
}

TEST(TextMetrics, AreWholePointsAndAsHighAsTheFont)
{
    const ShownWindow shown({100, 200, 300, 150});
    const LabelTextMeasurer measurer(shown.widget());
    const QSizeF size = measurer.labelSize(QStringLiteral("12 words"));
    EXPECT_EQ(size.width(), std::ceil(size.width()));
    EXPECT_EQ(size.height(), std::ceil(size.height()));
    EXPECT_EQ(measurer.labelSize({}), QSizeF(0, size.height()));
}

TEST(TextMetrics, ChangeWithTheFontOfTheUser)
{
    const ShownWindow shown({100, 200, 300, 150});
    auto &label = shown.add<Label>("label", {10, 20, 1, 1});
    label.setStringValue(QStringLiteral("1,234 words"));
    label.sizeToFit();
    shown.show();
    const QSizeF small = label.frame().size();
    int changes = 0;
    QObject::connect(&shown.window(), &Window::textMetricsDidChange, &shown.widget(), [&] {
        ++changes;
        label.sizeToFit();
    });
    {
        const UserFont large(24);
        EXPECT_TRUE(waitUntil([&] { return changes > 0; }));
        EXPECT_GT(label.frame().width(), small.width() * 1.5);
        EXPECT_GT(label.frame().height(), small.height() * 1.5);
        EXPECT_GE(label.frame().width(), shown.widgetOf<QLabel>(label).sizeHint().width());
    }
    EXPECT_TRUE(waitUntil([&] { return label.frame().size() == small; }));
    EXPECT_EQ(changes, 2);
}

TEST(TextMetrics, LabelsAddedLaterAreMeasuredToo)
{
    const ShownWindow shown({100, 200, 300, 150});
    auto &label = shown.add<Label>("label", {10, 20, 0, 0});
    label.setStringValue(QStringLiteral("12"));
    label.sizeToFit();
    EXPECT_GT(label.frame().width(), 0);
}
