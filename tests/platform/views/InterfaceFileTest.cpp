// SPDX-License-Identifier: MIT
#include "platform/views/InterfaceFile.h"
#include "platform/views/Box.h"
#include "platform/views/Button.h"
#include "platform/views/Label.h"
#include "platform/views/ProgressIndicator.h"
#include "tests/harness/QuillbayTest.h"

using Cause = InterfaceError::Cause;

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

/// A root of 200 by 100 with the given widgets in it.
QByteArray panel(const QByteArray &widgets)
{
    return form(widget("QWidget", "panel", geometry(0, 0, 200, 100) + widgets));
}

Result<InterfaceFile, InterfaceError> parsed(const QByteArray &contents)
{
    return InterfaceFile::parse(contents, QStringLiteral("Panel.ui"));
}

InterfaceFile parsedWhole(const QByteArray &contents)
{
    auto result = parsed(contents);
    if (result)
        return std::move(result).value();
    ADD_FAILURE() << messageText(result.error()).toStdString();
    return {};
}

template <typename ViewClass>
std::shared_ptr<ViewClass> outletOf(const InterfaceFile &file, const char *name)
{
    const auto view = file.outlet<ViewClass>(QString::fromLatin1(name));
    if (view)
        return view.value();
    ADD_FAILURE() << messageText(view.error()).toStdString();
    return std::make_shared<ViewClass>();
}

/// The cause and line of the error that the contents give.
std::pair<Cause, qint64> errorOf(const QByteArray &contents)
{
    const auto result = parsed(contents);
    if (!result)
        return {result.error().cause, result.error().line};
    ADD_FAILURE() << "no error";
    return {};
}

class FlippedTestView : public View {
public:
    [[nodiscard]] bool isFlipped() const override { return true; }
};

} // namespace

TEST(InterfaceFile, TurnsDistancesFromTheTopIntoOnesFromTheBottom)
{
    const InterfaceFile file = parsedWhole(panel(widget(
        "QWidget", "group", geometry(10, 5, 100, 60) + widget("QLabel", "label", geometry(3, 4, 50, 17)))));
    EXPECT_EQ(file.rootView()->frame(), QRectF(0, 0, 200, 100));
    EXPECT_EQ(outletOf<View>(file, "group")->frame(), QRectF(10, 35, 100, 60));
    EXPECT_EQ(outletOf<Label>(file, "label")->frame(), QRectF(3, 39, 50, 17));
}

TEST(InterfaceFile, KeepsDistancesFromTheTopInAFlippedView)
{
    InterfaceMakers makers;
    makers.add<FlippedTestView>(QStringLiteral("FlippedTestView"));
    const auto file = InterfaceFile::parse(
        form(widget("FlippedTestView", "panel",
            geometry(7, 7, 200, 100) + widget("QLabel", "label", geometry(3, 4, 50, 17)))),
        QStringLiteral("Panel.ui"), makers);
    ASSERT_TRUE(file);
    EXPECT_EQ(file.value().rootView()->frame(), QRectF(0, 0, 200, 100));
    EXPECT_EQ(outletOf<Label>(file.value(), "label")->frame(), QRectF(3, 4, 50, 17));
}

TEST(InterfaceFile, MakesAViewOfItsKindForEveryClass)
{
    const InterfaceFile file = parsedWhole(panel(widget("QLabel", "label", geometry(0, 0, 1, 1))
        + widget("QPushButton", "push", geometry(0, 0, 1, 1))
        + widget("QToolButton", "tool", geometry(0, 0, 1, 1))
        + widget("QProgressBar", "progress", geometry(0, 0, 1, 1))
        + widget("QFrame", "box", geometry(0, 0, 1, 1))
        + widget("Line", "line", geometry(0, 0, 1, 1) + property("orientation", "<enum>Qt::Vertical</enum>"))
        + widget(
            "QFrame", "rule", geometry(0, 0, 1, 1) + property("frameShape", "<enum>QFrame::HLine</enum>"))));
    EXPECT_TRUE(file.outlet<Label>(QStringLiteral("label")));
    EXPECT_TRUE(file.outlet<Button>(QStringLiteral("push")));
    EXPECT_TRUE(file.outlet<Button>(QStringLiteral("tool")));
    EXPECT_TRUE(file.outlet<ProgressIndicator>(QStringLiteral("progress")));
    EXPECT_EQ(outletOf<Box>(file, "box")->kind(), Box::Kind::Plain);
    EXPECT_EQ(outletOf<Box>(file, "line")->kind(), Box::Kind::Separator);
    EXPECT_EQ(outletOf<Box>(file, "rule")->kind(), Box::Kind::Separator);
}

TEST(InterfaceFile, KeepsTheOrderOfTheWidgets)
{
    const InterfaceFile file = parsedWhole(panel(widget("QLabel", "b", geometry(0, 0, 1, 1))
        + widget("QLabel", "a", geometry(0, 0, 1, 1)) + widget("QLabel", "c", geometry(0, 0, 1, 1))));
    QStringList names;
    for (const std::shared_ptr<View> &view : file.rootView()->subviews())
        names.append(view->identifier());
    EXPECT_EQ(names, (QStringList{QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("c")}));
}

TEST(InterfaceFile, GivesViewsWhatTheirPropertiesSay)
{
    const InterfaceFile file = parsedWhole(
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
    const auto label = outletOf<Label>(file, "label");
    EXPECT_EQ(label->stringValue(), QStringLiteral("12 < 34 – é"));
    EXPECT_EQ(label->tag(), 7);
    EXPECT_TRUE(label->isHidden());
    EXPECT_EQ(label->alignment(), LabelAlignment::Right);
    EXPECT_EQ(label->accessibleName(), QStringLiteral("Words"));
    EXPECT_EQ(label->toolTip(), QStringLiteral("The words of the text"));
    EXPECT_EQ(label->identifier(), QStringLiteral("label"));
    const auto button = outletOf<Button>(file, "button");
    EXPECT_EQ(button->title(), QStringLiteral("Count"));
    EXPECT_EQ(button->iconName(), QStringLiteral("view-refresh"));
    EXPECT_FALSE(button->isEnabled());
}

TEST(InterfaceFile, HandsOutFurtherPropertiesByNameAndKind)
{
    const InterfaceFile file = parsedWhole(form(widget("QWidget", "panel",
        geometry(0, 0, 1, 1) + property("labelPositionPolicy", "<number>-2</number>")
            + property("showsZero", "<bool>true</bool>")
            + property("windowTitle", "<string>Statistics</string>"))));
    const QString panelName = QStringLiteral("panel");
    EXPECT_EQ(file.integerProperty(panelName, QStringLiteral("labelPositionPolicy")), -2);
    EXPECT_EQ(file.booleanProperty(panelName, QStringLiteral("showsZero")), true);
    EXPECT_EQ(file.stringProperty(panelName, QStringLiteral("windowTitle")), QStringLiteral("Statistics"));
    EXPECT_EQ(file.integerProperty(panelName, QStringLiteral("showsZero")), std::nullopt);
    EXPECT_EQ(file.integerProperty(panelName, QStringLiteral("tag")), std::nullopt);
    EXPECT_EQ(
        file.integerProperty(QStringLiteral("other"), QStringLiteral("labelPositionPolicy")), std::nullopt);
}

TEST(InterfaceFile, NamesTheOutletThatIsMissingOrOfAnotherClass)
{
    const InterfaceFile file = parsedWhole(panel(widget("QLabel", "words", geometry(0, 0, 1, 1))));
    const auto missing = file.outlet<Label>(QStringLiteral("pages"));
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error(),
        (InterfaceError{Cause::MissingOutlet, QStringLiteral("Panel.ui"), 4, QStringLiteral("pages")}));
    EXPECT_EQ(messageText(missing.error()), QStringLiteral("Panel.ui:4: no widget is named pages"));
    const auto other = file.outlet<Button>(QStringLiteral("words"));
    ASSERT_FALSE(other);
    EXPECT_EQ(other.error(),
        (InterfaceError{Cause::OutletOfOtherClass, QStringLiteral("Panel.ui"), 5, QStringLiteral("words")}));
}

TEST(InterfaceFile, RefusesAClassThatNobodyMakes)
{
    const auto result = parsed(panel("\n" + widget("QSlider", "slider", geometry(0, 0, 1, 1))));
    ASSERT_FALSE(result);
    EXPECT_EQ(
        messageText(result.error()), QStringLiteral("Panel.ui:6: no view can be made for the class QSlider"));
}

TEST(InterfaceFile, RefusesWhatItWouldHaveToPassOver)
{
    using Error = std::pair<Cause, qint64>;
    EXPECT_EQ(errorOf(panel("<layout class=\"QVBoxLayout\"/>")), (Error{Cause::UnsupportedElement, 5}));
    EXPECT_EQ(errorOf(panel("<action name=\"a\"/>")), (Error{Cause::UnsupportedElement, 5}));
    EXPECT_EQ(errorOf(panel(property("font", "<font><bold>true</bold></font>"))),
        (Error{Cause::UnsupportedProperty, 5}));
    EXPECT_EQ(
        errorOf(panel(property("cursor", "<enum>Qt::Cross</enum>"))), (Error{Cause::UnsupportedProperty, 5}));
    EXPECT_EQ(errorOf("<ui version=\"4.0\">\n" + widget("QWidget", "a", geometry(0, 0, 1, 1))
                  + "\n<connections>\n<connection/></connections></ui>"),
        (Error{Cause::UnsupportedElement, 6}));
}

TEST(InterfaceFile, RefusesValuesThatAPropertyCannotHave)
{
    const auto causeOf = [](const QByteArray &content) {
        return errorOf(panel(widget("QLabel", "label", geometry(0, 0, 1, 1) + content))).first;
    };
    EXPECT_EQ(causeOf(property("tag", "<number>seven</number>")), Cause::BadValue);
    EXPECT_EQ(causeOf(property("tag", "<string>7</string>")), Cause::BadValue);
    EXPECT_EQ(causeOf(property("tag", "<number>99999999999999999999</number>")), Cause::BadValue);
    EXPECT_EQ(causeOf(property("visible", "<bool>yes</bool>")), Cause::BadValue);
    EXPECT_EQ(causeOf(property("weight", "<double>inf</double>")), Cause::BadValue);
    EXPECT_EQ(causeOf(property("alignment", "<set>Qt::AlignTop</set>")), Cause::BadValue);
    EXPECT_EQ(
        causeOf(property("geometry", "<rect><x>1</x><y>1</y><width>1</width></rect>")), Cause::BadValue);
    EXPECT_EQ(causeOf(geometry(0, 0, -1, 1)), Cause::BadValue);
    EXPECT_EQ(causeOf(geometry(0, 0, 1, 100'001)), Cause::BadValue);
    EXPECT_EQ(causeOf(geometry(-2147483647 - 1, 0, 1, 1)), Cause::BadValue);
    EXPECT_EQ(causeOf(property("tag", "")), Cause::BadValue);
    EXPECT_EQ(causeOf(property("text", "<string>a<b/></string>")), Cause::BadValue);
    EXPECT_EQ(causeOf(property("geometry", "<rect><x>1<y/></x></rect>")), Cause::BadValue);
    EXPECT_EQ(causeOf(property("text", "<string>a</string><string>b</string>")), Cause::UnsupportedElement);
    EXPECT_EQ(errorOf(panel(widget("QLabel", "label", ""))).first, Cause::BadValue);
}

TEST(InterfaceFile, RefusesTwoViewsOfOneName)
{
    EXPECT_EQ(errorOf(panel(widget("QLabel", "a", geometry(0, 0, 1, 1)) + "\n"
                  + widget("QLabel", "a", geometry(0, 0, 1, 1)))),
        (std::pair{Cause::DuplicateName, qint64(8)}));
}

TEST(InterfaceFile, RefusesWhatIsNoForm)
{
    EXPECT_EQ(errorOf("").first, Cause::NotWellFormed);
    EXPECT_EQ(errorOf("counted").first, Cause::NotWellFormed);
    EXPECT_EQ(errorOf("<html/>").first, Cause::NotAnInterface);
    EXPECT_EQ(errorOf("<ui/>").first, Cause::NotAnInterface);
    EXPECT_EQ(errorOf("<ui version=\"3.3\"/>").first, Cause::NotAnInterface);
    EXPECT_EQ(errorOf("<ui version=\"4.0\"></ui>").first, Cause::NotAnInterface);
    const QByteArray root = widget("QWidget", "a", geometry(0, 0, 1, 1));
    EXPECT_EQ(errorOf(form(root + root)).first, Cause::NotAnInterface);
    EXPECT_EQ(errorOf(form(root) + "<ui/>").first, Cause::NotWellFormed);
}

TEST(InterfaceFile, RefusesAFormThatBreaksOffAnywhere)
{
    const QByteArray whole =
        panel(widget("QLabel", "a", geometry(0, 0, 1, 1) + property("text", "<string>b</string>")));
    const qsizetype end = whole.lastIndexOf('>');
    for (qsizetype length = 0; length < end; ++length)
        EXPECT_EQ(errorOf(whole.left(length)).first, Cause::NotWellFormed) << length;
}

TEST(InterfaceFile, BoundsDepthAndNumberOfViews)
{
    const auto nested = [](int depth) {
        QByteArray inner;
        for (int i = 0; i < depth; ++i)
            inner = widget("QWidget", "", geometry(0, 0, 1, 1) + inner);
        return form(inner);
    };
    EXPECT_TRUE(parsed(nested(InterfaceFile::deepestNesting)));
    EXPECT_EQ(errorOf(nested(InterfaceFile::deepestNesting + 1)).first, Cause::TooDeep);
    const QByteArray small = widget("QWidget", "", geometry(0, 0, 1, 1));
    EXPECT_TRUE(parsed(panel(small.repeated(InterfaceFile::mostViews - 1))));
    EXPECT_EQ(errorOf(panel(small.repeated(InterfaceFile::mostViews))).first, Cause::TooManyViews);
}

TEST(InterfaceFile, BoundsTheSize)
{
    const QByteArray small = form(widget("QWidget", "a", geometry(0, 0, 1, 1)));
    const QByteArray largest = small + QByteArray(InterfaceFile::largestSize - small.size(), ' ');
    EXPECT_TRUE(parsed(largest));
    EXPECT_EQ(errorOf(largest + ' ').first, Cause::TooLarge);
}

TEST(InterfaceFile, DoesNotUnfoldEntitiesWithoutEnd)
{
    QByteArray entities = "<!DOCTYPE ui [<!ENTITY e0 \"0123456789\">";
    for (int i = 1; i < 10; ++i) {
        const QByteArray name = "e" + QByteArray::number(i - 1);
        entities += "<!ENTITY e" + QByteArray::number(i) + " \"" + ("&" + name + ";").repeated(10) + "\">";
    }
    const QByteArray contents = entities + "]><ui version=\"4.0\">"
        + widget("QLabel", "a", geometry(0, 0, 1, 1) + property("text", "<string>&e9;</string>")) + "</ui>";
    EXPECT_EQ(errorOf(contents).first, Cause::NotWellFormed);
}

class InterfaceFiles : public QuillbayTest { };

TEST_F(InterfaceFiles, AreReadFromTheirPath)
{
    const QString path =
        writeFile(QStringLiteral("Panel.ui"), panel(widget("QLabel", "a", geometry(0, 0, 1, 1))));
    const auto file = InterfaceFile::load(path);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file.value().outlet<Label>(QStringLiteral("a")));
}

TEST_F(InterfaceFiles, WithoutContentsAreNamed)
{
    const auto missing = InterfaceFile::load(QStringLiteral(":/NoPanel.ui"));
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().cause, Cause::CannotBeRead);
    EXPECT_TRUE(messageText(missing.error()).startsWith(QStringLiteral(":/NoPanel.ui: cannot be read: ")));
    const auto folder = InterfaceFile::load(world().home());
    ASSERT_FALSE(folder);
    EXPECT_EQ(folder.error().cause, Cause::CannotBeRead);
}
