// SPDX-License-Identifier: MIT
#include "platform/views/Controls.h"
#include "platform/views/Painter.h"
#include "platform/views/ScrollView.h"
#include "tests/platform/views/widgets/ShownWindow.h"

#include <QAccessible>
#include <QGraphicsEffect>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>

using ::testing::ElementsAre;

namespace {

class FlippedTestView : public View {
public:
    [[nodiscard]] bool isFlipped() const override { return true; }
};

/// Red at the bottom, blue at the top of its own coordinates.
class TwoColorView : public View {
public:
    void drawRect(const QRectF & /*dirtyRect*/, Painter &painter) override
    {
        const QRectF lower(0, 0, bounds().width(), bounds().height() / 2);
        painter.fillRect(lower, {1, 0, 0, 1});
        painter.fillRect(lower.translated(0, lower.height()), {0, 0, 1, 1});
    }
};

class FlippedTwoColorView : public TwoColorView {
public:
    [[nodiscard]] bool isFlipped() const override { return true; }
};

/// Like the event loop of a program.
void deletePendingObjects()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QStringList accessibleNames(QWidget &widget)
{
    QStringList names;
    const QAccessibleInterface *const parent = QAccessible::queryAccessibleInterface(&widget);
    for (int i = 0; i < parent->childCount(); ++i) {
        if (!parent->child(i)->state().invisible)
            names.append(parent->child(i)->text(QAccessible::Name));
    }
    return names;
}

QRgb pixelAt(const ShownWindow &shown, int x, int y)
{
    return shown.widget().grab().toImage().pixel(x, y);
}

} // namespace

TEST(ViewBinding, WidgetsHaveThePlacesOfTheirViews)
{
    const ShownWindow shown({100, 200, 300, 150});
    View &group = shown.add<View>("group", {10, 20, 100, 60});
    const auto label = std::make_shared<Label>(QRectF(5, 5.5, 50, 17));
    label->setIdentifier(QStringLiteral("label"));
    group.addSubview(label);
    EXPECT_EQ(shown.widgetOf(group).geometry(), QRect(10, 70, 100, 60));
    EXPECT_EQ(shown.widgetOf(*label).mapTo(&shown.widget(), QPoint()), QPoint(15, 150 - 26 - 17));
    label->setFrameOrigin({6, 7});
    EXPECT_EQ(shown.widgetOf(*label).mapTo(&shown.widget(), QPoint()), QPoint(16, 150 - 27 - 17));
    group.setFrame({0, 0, 200, 100});
    EXPECT_EQ(shown.widgetOf(*label).mapTo(&shown.widget(), QPoint()), QPoint(6, 150 - 7 - 17));
    EXPECT_EQ(label->frame(), QRectF(6, 7, 50, 17));
}

TEST(ViewBinding, WidgetsStayAtTheBottomLeftWhenTheWindowGrows)
{
    const ShownWindow shown({100, 200, 300, 150});
    const Label &label = shown.add<Label>("label", {10, 20, 50, 17});
    shown.window().setFrame({100, 200, 300, 250}, true, false);
    EXPECT_EQ(shown.widgetOf(label).mapTo(&shown.widget(), QPoint()), QPoint(10, 250 - 20 - 17));
}

TEST(ViewBinding, AdjacentViewsInDifferentSuperviewsLeaveNoGap)
{
    const ShownWindow shown({100, 200, 300, 150});
    const auto addGroup = [&shown](const char *name, const QRectF &frame, const QRectF &inner) {
        View &group = shown.add<View>("", frame);
        auto view = std::make_shared<View>(inner);
        view->setIdentifier(QString::fromLatin1(name));
        group.addSubview(view);
        return view;
    };
    // From 10.3 + 0.3 to 20.6, and from 20.4 + 0.2 on.
    const auto left = addGroup("left", {10.3, 0, 20, 20}, {0.3, 0, 10, 20});
    const auto right = addGroup("right", {20.4, 0, 20, 20}, {0.2, 0, 10, 20});
    const QWidget &leftWidget = shown.widgetOf(*left);
    const QWidget &rightWidget = shown.widgetOf(*right);
    EXPECT_EQ(leftWidget.mapTo(&shown.widget(), QPoint(leftWidget.width(), 0)).x(),
        rightWidget.mapTo(&shown.widget(), QPoint()).x());
}

TEST(ViewBinding, FlippedViewsCountFromTheirTop)
{
    const ShownWindow shown({100, 200, 300, 150});
    View &group = shown.add<FlippedTestView>("group", {10, 20, 100, 60});
    const auto label = std::make_shared<Label>(QRectF(5, 5, 50, 17));
    label->setIdentifier(QStringLiteral("label"));
    group.addSubview(label);
    EXPECT_EQ(shown.widgetOf(*label).geometry(), QRect(5, 5, 50, 17));
}

TEST(ViewBinding, LabelsShowTheirTextOnOneLineThatTheMouseCannotSelect)
{
    const ShownWindow shown({100, 200, 300, 150});
    auto &label = shown.add<Label>("label", {10, 20, 50, 17});
    label.setStringValue(QStringLiteral("<b>1</b> & 2"));
    label.setAlignment(LabelAlignment::Right);
    const QLabel &widget = shown.widgetOf<QLabel>(label);
    EXPECT_EQ(widget.text(), QStringLiteral("<b>1</b> & 2"));
    EXPECT_EQ(widget.textFormat(), Qt::PlainText);
    EXPECT_EQ(widget.textInteractionFlags(), Qt::NoTextInteraction);
    EXPECT_FALSE(widget.wordWrap());
    EXPECT_TRUE(widget.alignment() & Qt::AlignRight);
    label.setStringValue(QStringLiteral("3\nwords"));
    EXPECT_EQ(widget.text(), QStringLiteral("3 words"));
}

TEST(ViewBinding, HiddenViewsAreInvisible)
{
    const ShownWindow shown({100, 200, 300, 150});
    auto &label = shown.add<Label>("label", {10, 20, 50, 17});
    auto &hidden = shown.add<Label>("hidden", {10, 40, 50, 17});
    hidden.setHidden(true);
    shown.show();
    EXPECT_TRUE(shown.widgetOf(label).isVisible());
    EXPECT_FALSE(shown.widgetOf(hidden).isVisible());
    label.setHidden(true);
    hidden.setHidden(false);
    EXPECT_FALSE(shown.widgetOf(label).isVisible());
    EXPECT_TRUE(shown.widgetOf(hidden).isVisible());
}

TEST(ViewBinding, FollowsAddedAndRemovedSubviews)
{
    const ShownWindow shown({100, 200, 300, 150});
    shown.show();
    const auto label = std::make_shared<Label>(QRectF(10, 20, 50, 17));
    label->setIdentifier(QStringLiteral("label"));
    shown.content().addSubview(label);
    EXPECT_TRUE(shown.widgetOf(*label).isVisible());
    const QPointer<QWidget> widget = &shown.widgetOf(*label);
    label->removeFromSuperview();
    EXPECT_FALSE(widget->isVisible());
    label->setStringValue(QStringLiteral("nobody listens"));
    shown.window().setContentView(nullptr);
    deletePendingObjects();
    EXPECT_TRUE(widget.isNull());
    EXPECT_TRUE(shown.widget().findChildren<QWidget *>().isEmpty());
}

TEST(ViewBinding, AViewThatMovesToAnotherSuperviewIsShownThere)
{
    const ShownWindow shown({100, 200, 300, 150});
    View &first = shown.add<View>("first", {0, 0, 100, 100});
    View &second = shown.add<View>("second", {100, 0, 100, 100});
    const auto label = std::make_shared<Label>(QRectF(10, 20, 50, 17));
    label->setIdentifier(QStringLiteral("label"));
    first.addSubview(label);
    second.addSubview(label);
    deletePendingObjects();
    EXPECT_EQ(shown.widget().findChildren<QWidget *>(QStringLiteral("label")).size(), 1);
    EXPECT_EQ(shown.widgetOf(*label).parentWidget(), &shown.widgetOf(second));
}

TEST(ViewBinding, ScreenReadersReadTheLabelsInTheirOrder)
{
    const ShownWindow shown({100, 200, 300, 150});
    shown.content().setIdentifier(QStringLiteral("content"));
    shown.window().setContentView(nullptr);
    shown.window().setContentView(shown.contentShared());
    shown.add<Label>("a", {10, 20, 50, 17}).setStringValue(QStringLiteral("12 words"));
    auto &named = shown.add<Label>("b", {10, 40, 50, 17});
    named.setStringValue(QStringLiteral("34"));
    named.setAccessibleName(QStringLiteral("34 characters"));
    auto &hidden = shown.add<Label>("c", {10, 60, 50, 17});
    hidden.setStringValue(QStringLiteral("hidden"));
    hidden.setHidden(true);
    auto &button = shown.add<Button>("d", {10, 80, 50, 17});
    button.setIconName(QStringLiteral("edit-copy"));
    button.setAccessibleName(QStringLiteral("Copy"));
    shown.show();
    QWidget &content = shown.widgetOf(shown.content());
    EXPECT_THAT(accessibleNames(content),
        ElementsAre(QStringLiteral("12 words"), QStringLiteral("34 characters"), QStringLiteral("Copy")));
    shown.content().addSubview(shown.content().subviews().front()); // now the last
    EXPECT_THAT(accessibleNames(content),
        ElementsAre(QStringLiteral("34 characters"), QStringLiteral("Copy"), QStringLiteral("12 words")));
}

TEST(ViewBinding, KeepsTheWidgetsOfViewsThatStay)
{
    const ShownWindow shown({100, 200, 300, 150});
    const Label &a = shown.add<Label>("a", {10, 20, 50, 17});
    const Label &b = shown.add<Label>("b", {10, 40, 50, 17});
    const QWidget *const widgetOfA = &shown.widgetOf(a);
    const QWidget *const widgetOfB = &shown.widgetOf(b);
    shown.add<Label>("c", {10, 60, 50, 17});
    shown.content().addSubview(shown.content().subviews().front());
    EXPECT_EQ(&shown.widgetOf(a), widgetOfA);
    EXPECT_EQ(&shown.widgetOf(b), widgetOfB);
    shown.content().subviews().front()->removeFromSuperview();
    deletePendingObjects();
    EXPECT_EQ(&shown.widgetOf(a), widgetOfA);
    EXPECT_EQ(shown.widget().findChild<QWidget *>(QStringLiteral("b")), nullptr);
}

TEST(ViewBinding, TheLastSubviewLiesAboveTheOthers)
{
    const ShownWindow shown({100, 200, 300, 150});
    const Color red{1, 0, 0, 1};
    const Color blue{0, 0, 1, 1};
    shown.add<Box>("red", {0, 0, 100, 100}).setBackgroundColor(red);
    shown.add<Box>("blue", {0, 0, 100, 100}).setBackgroundColor(blue);
    shown.show();
    EXPECT_EQ(pixelAt(shown, 50, 100), 0xff0000ffU);
    shown.content().addSubview(shown.content().subviews().front());
    EXPECT_EQ(pixelAt(shown, 50, 100), 0xffff0000U);
}

TEST(ViewBinding, ViewsDrawInTheirOwnCoordinates)
{
    const ShownWindow shown({100, 200, 300, 150});
    shown.add<TwoColorView>("upright", {0, 0, 50, 100});
    shown.add<FlippedTwoColorView>("flipped", {100, 0, 50, 100});
    shown.show();
    EXPECT_EQ(pixelAt(shown, 25, 60), 0xff0000ffU);
    EXPECT_EQ(pixelAt(shown, 25, 140), 0xffff0000U);
    EXPECT_EQ(pixelAt(shown, 125, 60), 0xffff0000U);
    EXPECT_EQ(pixelAt(shown, 125, 140), 0xff0000ffU);
}

TEST(ViewBinding, AClickReachesTheButton)
{
    const ShownWindow shown({100, 200, 300, 150});
    auto &button = shown.add<Button>("button", {50, 50, 100, 30});
    button.setTitle(QStringLiteral("A & B"));
    int clicks = 0;
    QObject::connect(&button, &Button::clicked, &shown.widget(), [&clicks] { ++clicks; });
    shown.show();
    const QStringList click =
        shown.pointerTo(100, 65) + QStringList{QStringLiteral("click"), QStringLiteral("1")};
    TestDisplay::xdotool(click);
    EXPECT_TRUE(waitUntil([&] { return clicks == 1; }));
    EXPECT_EQ(shown.widgetOf<QPushButton>(button).text(), QStringLiteral("A && B"));
    button.setEnabled(false);
    EXPECT_FALSE(shown.widgetOf(button).isEnabled());
}

TEST(ViewBinding, AButtonShowsItsAccessibleNameIfTheThemeHasNoSuchIcon)
{
    const ShownWindow shown({100, 200, 300, 150});
    auto &button = shown.add<Button>("button", {50, 50, 100, 30});
    button.setIconName(QStringLiteral("no-such-icon"));
    button.setAccessibleName(QStringLiteral("Copy"));
    EXPECT_EQ(shown.widgetOf<QPushButton>(button).text(), QStringLiteral("Copy"));
    EXPECT_TRUE(shown.widgetOf<QPushButton>(button).isFlat());
    button.setTitle(QStringLiteral("Copy All"));
    EXPECT_EQ(shown.widgetOf<QPushButton>(button).text(), QStringLiteral("Copy All"));
    EXPECT_FALSE(shown.widgetOf<QPushButton>(button).isFlat());
}

TEST(ViewBinding, AClickMayRemoveItsOwnButton)
{
    const ShownWindow shown({100, 200, 300, 150});
    auto &first = shown.add<Button>("first", {50, 50, 100, 30});
    shown.show();
    QObject::connect(&first, &Button::clicked, &shown.widget(), [&first] { first.removeFromSuperview(); });
    shown.widgetOf<QPushButton>(first).click();
    EXPECT_TRUE(shown.content().subviews().empty());
    const auto &second = shown.add<Button>("second", {50, 50, 100, 30});
    QObject::connect(
        &second, &Button::clicked, &shown.widget(), [&shown] { shown.window().setContentView(nullptr); });
    shown.widgetOf<QPushButton>(second).click();
    EXPECT_EQ(shown.window().contentView(), nullptr);
}

TEST(ViewBinding, TheWheelReachesTheScrollView)
{
    const ShownWindow shown({100, 200, 300, 150});
    auto &scrollView = shown.add<ScrollView>("scroll", {0, 0, 200, 100});
    const auto document = std::make_shared<View>(QRectF(0, 0, 200, 1000));
    const auto label = std::make_shared<Label>(QRectF(0, 500, 200, 20));
    label->setIdentifier(QStringLiteral("label"));
    document->addSubview(label);
    scrollView.setDocumentView(document);
    scrollView.contentView().scrollToPoint({0, 480});
    shown.show();
    const int before = shown.widgetOf(*label).mapTo(&shown.widget(), QPoint()).y();
    EXPECT_EQ(before, 150 - 20 - 20);
    TestDisplay::xdotool(
        shown.pointerTo(100, 50) + QStringList{QStringLiteral("click"), QStringLiteral("5")});
    EXPECT_TRUE(waitUntil([&] { return scrollView.contentView().bounds().y() < 480; }));
    const double scrolled = 480 - scrollView.contentView().bounds().y();
    EXPECT_EQ(shown.widgetOf(*label).mapTo(&shown.widget(), QPoint()).y(), before - qRound(scrolled));
}

TEST(ViewBinding, FadesToTheNewOpacity)
{
    const ShownWindow shown({100, 200, 300, 150});
    Box &box = shown.add<Box>("box", {0, 0, 100, 100});
    box.setBackgroundColor(Color{1, 0, 0, 1});
    shown.show();
    EXPECT_EQ(pixelAt(shown, 50, 100), 0xffff0000U);
    const QRgb background = pixelAt(shown, 200, 100);
    box.setAlphaValue(0.5);
    const QRgb half = pixelAt(shown, 50, 100);
    EXPECT_NEAR(qGreen(half), qGreen(background) / 2.0, 2);
    box.fadeTo(0, 200);
    EXPECT_EQ(box.alphaValue(), 0);
    EXPECT_TRUE(waitUntil([&] {
        const int green = qGreen(pixelAt(shown, 50, 100));
        return green > qGreen(half) && green < qGreen(background);
    }));
    EXPECT_TRUE(waitUntil([&] { return pixelAt(shown, 50, 100) == background; }));
    box.fadeTo(1, 50);
    EXPECT_TRUE(waitUntil([&] { return pixelAt(shown, 50, 100) == 0xffff0000U; }));
    EXPECT_TRUE(waitUntil([&] { return shown.widgetOf(box).graphicsEffect() == nullptr; }));
}

TEST(ViewBinding, ASpinnerShowsOnlyWhileItTurns)
{
    const ShownWindow shown({100, 200, 300, 150});
    auto &indicator = shown.add<ProgressIndicator>("spinner", {20, 20, 32, 32});
    shown.show();
    const auto picture = [&] { return shown.widgetOf(indicator).grab().toImage(); };
    const QImage empty = picture();
    indicator.startAnimation();
    const QImage first = picture();
    EXPECT_NE(first, empty);
    EXPECT_TRUE(waitUntil([&] { return picture() != first; }));
    indicator.stopAnimation();
    EXPECT_EQ(picture(), empty);
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(&shown.widgetOf(indicator))->role(), QAccessible::ProgressBar);
}

TEST(ViewBinding, ASeparatorIsAThinLineAlongItsLongerSide)
{
    const ShownWindow shown({100, 200, 300, 150});
    Box &separator = shown.add<Box>("line", {0, 0, 100, 11});
    shown.show();
    const QRgb background = pixelAt(shown, 50, 140);
    EXPECT_EQ(pixelAt(shown, 50, 144), background);
    separator.setKind(Box::Kind::Separator);
    EXPECT_NE(pixelAt(shown, 50, 144), background);
    EXPECT_EQ(pixelAt(shown, 50, 143), background);
    EXPECT_EQ(pixelAt(shown, 50, 145), background);
    separator.setFrame({0, 0, 11, 100});
    EXPECT_NE(pixelAt(shown, 5, 60), background);
    EXPECT_EQ(pixelAt(shown, 4, 60), background);
}
