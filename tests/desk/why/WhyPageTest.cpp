// SPDX-License-Identifier: MIT
// The page "Why" as a user meets it: on a display, with the real counting service.
#include "desk/why/WhyPage.h"

#include "desk/why/WhyTextView.h"
#include "preferences/QBYUserDefaultsController.h"
#include "tests/counting_service/CountingServiceTest.h"
#include "tests/harness/Display.h"
#include "tests/harness/Screenshot.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QToolTip>
#include <QTreeWidget>

#include <cmath>

using ::testing::HasSubstr;

namespace {

class WhyPageTest : public CountingServiceTest {
protected:
    WhyPageTest()
    {
        TestDisplay::start();
        setLocale("en_US.UTF-8");
        takeLocaleFromEnvironment();
        QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
        installService();
    }

    WhyPage &open()
    {
        m_page.emplace();
        m_page->resize(900, 500);
        m_page->show();
        m_page->activateWindow();
        EXPECT_TRUE(waitUntil([this] { return m_page->isActiveWindow(); }));
        return *m_page;
    }
    void openText(const QByteArray &text)
    {
        open().openFile(QUrl::fromLocalFile(writeFile(QStringLiteral("letter.txt"), text)));
        EXPECT_TRUE(waitUntil([this] { return number(0) != u"…" && !number(0).isEmpty(); }));
        EXPECT_TRUE(waitUntil([this] { return !view().items().isEmpty(); }));
    }

    template <typename Widget>
    Widget &control(const char *name)
    {
        auto *const found = m_page->findChild<Widget *>(QString::fromLatin1(name));
        if (!found)
            throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    WhyTextView &view() { return control<WhyTextView>("textView"); }
    QTreeWidget &counts() { return control<QTreeWidget>("countList"); }
    QString number(int row) { return counts().topLevelItem(row)->text(1); }
    std::string reason() { return control<QLabel>("reasonLabel").text().toStdString(); }
    std::string state() { return control<QLabel>("stateLabel").text().toStdString(); }

    static void picture(const QString &name)
    {
        QCoreApplication::processEvents(); // paints
        QGuiApplication::sync();
        saveScreenshot(name);
    }

    static void clickAt(QPoint place)
    {
        TestDisplay::xdotool({QStringLiteral("mousemove"), QString::number(place.x()),
            QString::number(place.y()), QStringLiteral("click"), QStringLiteral("1")});
    }
    void clickCount(int row)
    {
        const QRect rect = counts().visualItemRect(counts().topLevelItem(row));
        clickAt(counts().viewport()->mapToGlobal(rect.center()));
    }
    /// keys: separated by blanks.
    static void press(const char *keys)
    {
        TestDisplay::xdotool(QStringList{QStringLiteral("key")} + QString::fromLatin1(keys).split(u' '));
    }
    bool waitForReason(const char *part)
    {
        return waitUntil([this, part] { return reason().find(part) != std::string::npos; });
    }

    std::optional<WhyPage> m_page;
};

const QByteArray letter = "\tI saw b. It was late.\nNo end &\n\n  Spaces first. Good.\n";

} // namespace

TEST_F(WhyPageTest, ShowsTheCountsOfTheServiceAndWhatTheyConsistOf)
{
    openText(letter);
    QStringList numbers;
    for (int row = 0; row < counts().topLevelItemCount(); ++row)
        numbers.append(number(row));
    EXPECT_EQ(numbers.join(u' '), QStringLiteral("10 39 55 4 4 4 3 1"));
    EXPECT_EQ(view().toPlainText(), QString::fromUtf8(letter));
    EXPECT_EQ(view().extraSelections().size(), 12); // ten words, "b" and "&"
    picture(QStringLiteral("why-words"));
}

TEST_F(WhyPageTest, AClickOnANumberWalksThroughItsItems)
{
    openText(letter);
    clickCount(3);
    EXPECT_TRUE(waitForReason("Item 1 of 5 (4 of them counted): “I saw b.” is counted"));
    clickCount(3);
    EXPECT_TRUE(waitForReason("Item 2 of 5 (4 of them counted): “It was late.”"));
    press("F3");
    EXPECT_TRUE(waitForReason(
        "Item 3 of 5 (4 of them counted): “No end &” is not counted: it does not end in a full stop"));
    EXPECT_EQ(view().textCursor().selectedText(), QStringLiteral("No end &"));
    press("shift+F3");
    EXPECT_TRUE(waitForReason("2 of 5"));
    press("Return");
    EXPECT_TRUE(waitForReason("3 of 5"));
    picture(QStringLiteral("why-sentences"));
}

TEST_F(WhyPageTest, TheWalkCanLeaveOutWhatCounts)
{
    openText(letter);
    control<QCheckBox>("notCountedCheckBox").click();
    press("alt+n");
    EXPECT_TRUE(waitForReason("“b” is not counted: in American English"));
    press("alt+n");
    EXPECT_TRUE(waitForReason("“&” is not counted"));
    press("alt+n");
    EXPECT_TRUE(waitForReason("no more of them after"));
    press("alt+v");
    EXPECT_TRUE(waitForReason("“b” is not counted"));
}

TEST_F(WhyPageTest, TheKeyboardAloneReachesEverything)
{
    openText(letter);
    counts().setFocus();
    press("Down Down Down Down Down Down Return");
    EXPECT_TRUE(waitForReason("1 of 4 (3 of them counted): “I saw b. It was late.” is counted"));
    press("Tab");
    EXPECT_TRUE(waitUntil([this] { return view().hasFocus(); }));
    press("Tab");
    EXPECT_TRUE(waitUntil([this] { return control<QPushButton>("previousButton").hasFocus(); }));
}

TEST_F(WhyPageTest, AClickInTheTextGivesTheReason)
{
    openText(letter);
    QTextCursor cursor(view().document());
    cursor.setPosition(static_cast<int>(letter.indexOf('&')));
    clickAt(view().viewport()->mapToGlobal(view().cursorRect(cursor).center() + QPoint(3, 0)));
    EXPECT_TRUE(waitForReason("“&” is not counted: there is no letter"));
}

TEST_F(WhyPageTest, HoveringGivesTheReason)
{
    openText(letter);
    QTextCursor cursor(view().document());
    cursor.setPosition(1);
    const QPoint place = view().viewport()->mapToGlobal(view().cursorRect(cursor).center() + QPoint(2, 0));
    TestDisplay::xdotool(
        {QStringLiteral("mousemove"), QString::number(place.x() - 1), QString::number(place.y()),
            QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())});
    EXPECT_TRUE(waitUntil([] { return QToolTip::text().contains(u"“I” is counted"); }));
}

TEST_F(WhyPageTest, FollowsTheRules)
{
    openText(letter);
    QBYUserDefaultsController::setShouldEnforceTrailingPeriodForSentencesCount(false);
    m_page->followRules();
    EXPECT_TRUE(waitUntil([this] { return number(3) == u"5"; }));
    clickCount(3);
    EXPECT_TRUE(waitForReason("1 of 5"));
    press("F3 F3");
    EXPECT_TRUE(waitForReason("3 of 5 (5 of them counted): “No end &” is counted"));
}

TEST_F(WhyPageTest, PastesRichAndPlainText)
{
    open();
    auto *const rich = new QMimeData;
    rich->setHtml(QStringLiteral("<p>Two words.<p>b"));
    QGuiApplication::clipboard()->setMimeData(rich);
    press("ctrl+v");
    EXPECT_TRUE(waitUntil([this] { return number(0) == u"2"; }));
    QGuiApplication::clipboard()->setText(QStringLiteral("one"));
    view().setFocus();
    press("ctrl+v");
    EXPECT_TRUE(waitUntil([this] { return number(0) == u"1"; }));
    EXPECT_EQ(view().toPlainText(), QStringLiteral("one"));
}

TEST_F(WhyPageTest, TakesWhatIsDropped)
{
    open();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(
        QDir(QStringLiteral(QUILLBAY_SAMPLES)).filePath(QStringLiteral("minutes.rtf")))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&*m_page, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&*m_page, &drop);
    EXPECT_TRUE(waitUntil([this] { return number(0) == u"53"; }));
    EXPECT_EQ(control<QLabel>("sourceLabel").text(), QStringLiteral("minutes.rtf"));
}

TEST_F(WhyPageTest, SaysWhatCannotBeRead)
{
    open().openFile(QUrl(QStringLiteral("file:///no/such/letter.txt")));
    EXPECT_TRUE(waitUntil([this] { return state() == "letter.txt: no such file"; }));
    EXPECT_FALSE(control<QPushButton>("cancelButton").isVisible());
}

TEST_F(WhyPageTest, ALongTextIsMarkedWhereItIsVisible)
{
    openText(QByteArray("Many words are in this text, and b too.\n").repeated(10'000) + "The end.");
    EXPECT_EQ(number(0), QStringLiteral("80,002"));
    EXPECT_LT(view().extraSelections().size(), 2000);
    control<QCheckBox>("notCountedCheckBox").click();
    clickCount(6);
    EXPECT_TRUE(waitForReason("no more of them"));
    view().moveCursor(QTextCursor::End);
    clickCount(0);
    EXPECT_TRUE(waitUntil([this] { return view().items().size() == 90'002; }));
    EXPECT_TRUE(waitForReason("no more of them after"));
    press("alt+v");
    EXPECT_TRUE(waitForReason("Item 89,999 of 90,002 (80,002 of them counted): “b” is not counted"));
}

TEST_F(WhyPageTest, MarkedTextCanBeReadInDarkAndLight)
{
    const auto luminance = [](const QColor &color) {
        const auto linear = [](double part) {
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
            + 0.0722 * linear(color.blueF());
    };
    openText(letter);
    QSet<QRgb> colors;
    for (const bool isDark : {false, true}) {
        QPalette palette;
        palette.setColor(QPalette::Base, isDark ? QColor(0x1e1e1e) : QColor(Qt::white));
        palette.setColor(QPalette::Text, isDark ? QColor(0xeeeeee) : QColor(Qt::black));
        palette.setColor(QPalette::Window, isDark ? QColor(0x2d2d2d) : QColor(0xefefef));
        palette.setColor(QPalette::WindowText, palette.color(QPalette::Text));
        m_page->setPalette(palette);
        QSet<int> shapes;
        for (const QTextEdit::ExtraSelection &mark : view().extraSelections()) {
            const double text = luminance(palette.color(QPalette::Text)) + 0.05;
            const double back = luminance(mark.format.background().color()) + 0.05;
            EXPECT_GT(std::max(text, back) / std::min(text, back), 4.5); // as WCAG 2.1 demands
            colors.insert(mark.format.background().color().rgb());
            shapes.insert(mark.format.underlineStyle());
        }
        EXPECT_EQ(shapes.size(), 3);
        picture(isDark ? QStringLiteral("why-dark") : QStringLiteral("why-light"));
    }
    EXPECT_EQ(colors.size(), 6);
}

TEST_F(WhyPageTest, EveryControlHasAnAccessibleName)
{
    open();
    for (const QWidget *const widget : m_page->findChildren<QWidget *>()) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible())
            continue;
        EXPECT_FALSE(QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget))
                         ->text(QAccessible::Name)
                         .isEmpty())
            << widget->objectName().toStdString() << widget->metaObject()->className();
    }
}
