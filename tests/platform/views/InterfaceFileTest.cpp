// SPDX-License-Identifier: MIT
#include "platform/views/InterfaceFile.h"
#include "platform/views/Controls.h"
#include "tests/harness/QuillbayTest.h"

namespace {

QByteArray form(const QByteArray &widgets)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ui version=\"4.0\">\n<class>Panel</class>\n"
        + widgets + "\n<resources/>\n<connections/>\n</ui>\n";
}

QByteArray geometry(int x, int y, int width, int height)
{
    return QStringLiteral("<property name=\"geometry\"><rect><x>%1</x><y>%2</y><width>%3</width>"
                          "<height>%4</height></rect></property>")
        .arg(x)
        .arg(y)
        .arg(width)
        .arg(height)
        .toUtf8();
}

QByteArray widget(const QByteArray &className, const QByteArray &name, const QByteArray &content)
{
    return "<widget class=\"" + className + "\" name=\"" + name + "\">\n" + content + "\n</widget>";
}

QByteArray property(const QByteArray &name, const QByteArray &value)
{
    return "<property name=\"" + name + "\" stdset=\"0\">" + value + "</property>";
}

/// A root widget of 200 by 100 with the given widgets in it.
QByteArray panel(const QByteArray &widgets)
{
    return form(widget("QWidget", "panel", geometry(0, 0, 200, 100) + widgets));
}

Result<InterfaceFile, QString> parse(const QByteArray &contents)
{
    return InterfaceFile::parse(contents, QStringLiteral("Panel.ui"));
}

InterfaceFile parseOrFail(const QByteArray &contents)
{
    auto result = parse(contents);
    if (result)
        return std::move(result).value();
    ADD_FAILURE() << result.error().toStdString();
    return {};
}

/// Empty if the contents are accepted.
QString errorOf(const QByteArray &contents)
{
    const auto result = parse(contents);
    return result ? QString() : result.error();
}

} // namespace

TEST(InterfaceFile, ConvertsDistancesFromTheTopToDistancesFromTheBottom)
{
    const InterfaceFile file = parseOrFail(panel(widget(
        "QWidget", "group", geometry(10, 5, 100, 60) + widget("QLabel", "label", geometry(3, 4, 50, 17)))));
    EXPECT_EQ(file.rootView()->frame(), QRectF(0, 0, 200, 100));
    EXPECT_EQ(file.outlet<View>(QStringLiteral("group"))->frame(), QRectF(10, 35, 100, 60));
    EXPECT_EQ(file.outlet<Label>(QStringLiteral("label"))->frame(), QRectF(3, 39, 50, 17));
}

TEST(InterfaceFile, MakesAMatchingViewForEveryClass)
{
    const InterfaceFile file = parseOrFail(panel(widget("QLabel", "label", geometry(0, 0, 1, 1))
        + widget("QPushButton", "push", geometry(0, 0, 1, 1))
        + widget("QToolButton", "tool", geometry(0, 0, 1, 1))
        + widget("QProgressBar", "progress", geometry(0, 0, 1, 1))
        + widget(
            "Line", "line", geometry(0, 0, 1, 1) + property("orientation", "<enum>Qt::Vertical</enum>"))));
    EXPECT_TRUE(file.outlet<Label>(QStringLiteral("label")));
    EXPECT_TRUE(file.outlet<Button>(QStringLiteral("push")));
    EXPECT_TRUE(file.outlet<Button>(QStringLiteral("tool")));
    EXPECT_TRUE(file.outlet<ProgressIndicator>(QStringLiteral("progress")));
    EXPECT_EQ(file.outlet<Box>(QStringLiteral("line"))->kind(), Box::Kind::Separator);
}

TEST(InterfaceFile, KeepsTheOrderOfTheWidgets)
{
    const InterfaceFile file = parseOrFail(panel(widget("QLabel", "b", geometry(0, 0, 1, 1))
        + widget("QLabel", "a", geometry(0, 0, 1, 1)) + widget("QLabel", "c", geometry(0, 0, 1, 1))));
    QStringList names;
    for (const std::shared_ptr<View> &view : file.rootView()->subviews())
        names.append(view->identifier());
    EXPECT_EQ(names, (QStringList{QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("c")}));
}

TEST(InterfaceFile, AppliesTheProperties)
{
    const InterfaceFile file = parseOrFail(
        panel(widget("QLabel", "label",
                  geometry(0, 0, 1, 1) + property("text", "<string>12 &lt; 34 – é</string>")
                      + property("tag", "<number>7</number>") + property("visible", "<bool>false</bool>")
                      + property("alignment", "<set>Qt::AlignRight|Qt::AlignTrailing|Qt::AlignVCenter</set>")
                      + property("accessibleName", "<string>Words</string>")
                      + property("toolTip", "<string>The words of the text</string>"))
            + widget("QPushButton", "button",
                geometry(0, 0, 1, 1) + property("text", "<string>Count</string>")
                    + property("icon", "<iconset theme=\"view-refresh\"><normaloff>.</normaloff>.</iconset>")
                    + property("enabled", "<bool>false</bool>"))));
    const auto label = file.outlet<Label>(QStringLiteral("label"));
    EXPECT_EQ(label->stringValue(), QStringLiteral("12 < 34 – é"));
    EXPECT_EQ(label->tag(), 7);
    EXPECT_TRUE(label->isHidden());
    EXPECT_EQ(label->alignment(), LabelAlignment::Right);
    EXPECT_EQ(label->accessibleName(), QStringLiteral("Words"));
    EXPECT_EQ(label->toolTip(), QStringLiteral("The words of the text"));
    EXPECT_EQ(label->identifier(), QStringLiteral("label"));
    const auto button = file.outlet<Button>(QStringLiteral("button"));
    EXPECT_EQ(button->title(), QStringLiteral("Count"));
    EXPECT_EQ(button->iconName(), QStringLiteral("view-refresh"));
    EXPECT_FALSE(button->isEnabled());
}

TEST(InterfaceFile, OffersAllOtherNumbersByTheNameOfTheirProperty)
{
    const InterfaceFile file = parseOrFail(form(widget("QWidget", "panel",
        geometry(0, 0, 1, 1) + property("labelPositionPolicy", "<number>-2</number>")
            + property("tag", "<number>3</number>"))));
    const QString panelName = QStringLiteral("panel");
    EXPECT_EQ(file.integerProperty(panelName, QStringLiteral("labelPositionPolicy")), -2);
    EXPECT_EQ(file.integerProperty(panelName, QStringLiteral("tag")), std::nullopt);
    EXPECT_EQ(
        file.integerProperty(QStringLiteral("other"), QStringLiteral("labelPositionPolicy")), std::nullopt);
}

TEST(InterfaceFile, AbortsForAnOutletThatIsMissingOrOfAnotherClass)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const InterfaceFile file = parseOrFail(panel(widget("QLabel", "words", geometry(0, 0, 1, 1))));
    EXPECT_DEATH((void)file.outlet<Label>(QStringLiteral("pages")),
        "Panel.ui: no view of the expected class is named pages");
    EXPECT_DEATH((void)file.outlet<Button>(QStringLiteral("words")),
        "Panel.ui: no view of the expected class is named words");
}

TEST(InterfaceFile, NamesTheLineOfAnError)
{
    EXPECT_EQ(errorOf(panel("\n" + widget("QSlider", "slider", geometry(0, 0, 1, 1)))),
        QStringLiteral("Panel.ui:6: unsupported widget class QSlider"));
    EXPECT_EQ(errorOf(panel(widget("QLabel", "a", geometry(0, 0, 1, 1)) + "\n"
                  + widget("QLabel", "a", geometry(0, 0, 1, 1)))),
        QStringLiteral("Panel.ui:8: duplicate widget name a"));
}

TEST(InterfaceFile, RefusesUnsupportedElements)
{
    for (const QByteArray &content : {QByteArray("<layout class=\"QVBoxLayout\"/>"),
             QByteArray("<action name=\"a\"/>"), property("font", "<font><bold>true</bold></font>"),
             property("cursor", "<enum>Qt::Cross</enum>"), property("windowTitle", "<string>a</string>")})
        EXPECT_TRUE(errorOf(panel(content)).startsWith(QStringLiteral("Panel.ui:5: "))) << content.data();
}

TEST(InterfaceFile, RefusesInvalidValues)
{
    for (const QByteArray &content : {property("tag", "<number>seven</number>"),
             property("tag", "<number>99999999999999999999</number>"), property("tag", ""),
             property("visible", "<bool>yes</bool>"), property("alignment", "<set>Qt::AlignTop</set>"),
             property("geometry", "<rect><x>1</x><y>1</y><width>1</width></rect>"),
             property("geometry", "<rect><x>1<y/></x></rect>"), geometry(0, 0, -1, 1),
             geometry(0, 0, 1, 100'001), geometry(-2147483647 - 1, 0, 1, 1),
             property("text", "<string>a<b/></string>"),
             property("text", "<string>a</string><string>b</string>")})
        EXPECT_NE(errorOf(panel(widget("QLabel", "label", geometry(0, 0, 1, 1) + content))), QString())
            << content.data();
    EXPECT_NE(errorOf(panel(widget("QLabel", "label", ""))), QString());
}

TEST(InterfaceFile, RefusesFilesThatAreNotForms)
{
    const QByteArray root = widget("QWidget", "a", geometry(0, 0, 1, 1));
    for (const QByteArray &contents : {QByteArray(), QByteArray("counted"), QByteArray("<html/>"),
             QByteArray("<ui/>"), QByteArray("<ui version=\"3.3\"/>"),
             QByteArray("<ui version=\"4.0\"></ui>"), form(root + root), form(root) + "<ui/>"})
        EXPECT_NE(errorOf(contents), QString()) << contents.data();
}

TEST(InterfaceFile, RefusesATruncatedForm)
{
    const QByteArray whole =
        panel(widget("QLabel", "a", geometry(0, 0, 1, 1) + property("text", "<string>b</string>")));
    const qsizetype end = whole.lastIndexOf('>');
    for (qsizetype length = 0; length < end; ++length)
        EXPECT_NE(errorOf(whole.left(length)), QString()) << length;
}

TEST(InterfaceFile, LimitsTheNestingOfWidgets)
{
    const auto nested = [](int depth) {
        QByteArray inner;
        for (int i = 0; i < depth; ++i)
            inner = widget("QWidget", "", geometry(0, 0, 1, 1) + inner);
        return form(inner);
    };
    EXPECT_TRUE(parse(nested(64)));
    EXPECT_NE(errorOf(nested(65)), QString());
}

class InterfaceFiles : public QuillbayTest { };

TEST_F(InterfaceFiles, AreReadFromTheirPath)
{
    const QString path =
        writeFile(QStringLiteral("Panel.ui"), panel(widget("QLabel", "a", geometry(0, 0, 1, 1))));
    EXPECT_TRUE(InterfaceFile::load(path).outlet<Label>(QStringLiteral("a")));
}

TEST_F(InterfaceFiles, AbortTheProcessIfTheyDoNotExist)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(InterfaceFile::load(QStringLiteral(":/NoPanel.ui")), ":/NoPanel.ui: cannot be opened: ");
}
