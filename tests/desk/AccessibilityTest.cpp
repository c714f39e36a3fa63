// SPDX-License-Identifier: MIT
// Whether everybody can use the main window: by keyboard, with a screen reader, with large letters, in dark
// colours, from right to left.
#include "desk/PagePreview.h"
#include "platform/views/widgets/DesktopAppearance.h"
#include "tests/desk/DeskTest.h"
#include "tests/translations/ShownLanguage.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QStackedWidget>

#include <tuple>

using ::testing::Contains;

namespace {

class AccessibilityTest : public DeskTest {
protected:
    AccessibilityTest()
        : m_font(QApplication::font())
        , m_palette(QApplication::palette())
    {
    }
    ~AccessibilityTest() override
    {
        close();
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QApplication::setPalette(m_palette);
        QApplication::setFont(m_font);
    }

    void openPage(int page)
    {
        open();
        control<QListWidget>("pageList").setCurrentRow(page);
        EXPECT_TRUE(waitUntil([&] { return control<QStackedWidget>("pageStack").currentIndex() == page; }));
    }

    /// What a user can reach on the page and in the list of pages.
    [[nodiscard]] QList<QWidget *> controls() const
    {
        QList<QWidget *> found;
        for (QWidget *const widget : m_window->centralWidget()->findChildren<QWidget *>()) {
            const bool isControl = qobject_cast<QAbstractButton *>(widget)
                || qobject_cast<QAbstractSpinBox *>(widget) || qobject_cast<QComboBox *>(widget)
                || qobject_cast<QListWidget *>(widget);
            if (isControl && widget->isVisible() && widget->isEnabled())
                found.append(widget);
        }
        return found;
    }

    /// For people who want to look at it.
    void takePicture(const QString &name)
    {
        m_window->repaint();
        QGuiApplication::sync();
        saveScreenshot(name);
    }

    [[nodiscard]] static std::string nameOf(const QWidget &widget)
    {
        return widget.objectName().toStdString();
    }

private:
    const QFont m_font;
    const QPalette m_palette;
};

class EveryPage : public AccessibilityTest, public ::testing::WithParamInterface<int> { };

class EveryPageInEveryLanguage : public AccessibilityTest,
                                 public ::testing::WithParamInterface<std::tuple<int, const char *>> {
protected:
    [[nodiscard]] static int page() { return std::get<0>(GetParam()); }
    [[nodiscard]] static QString languageName() { return QString::fromLatin1(std::get<1>(GetParam())); }

private:
    const ShownLanguage m_language{languageName()};
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Desk, EveryPage, ::testing::Values(0, 1, 2, 3));
INSTANTIATE_TEST_SUITE_P(Desk, EveryPageInEveryLanguage,
    ::testing::Combine(::testing::Values(0, 1, 2, 3), ::testing::Values("en", "de", "fr")));

TEST_P(EveryPage, EveryControlIsReachedByTab)
{
    openPage(GetParam());
    control<QListWidget>("pageList").setFocus();
    QList<QWidget *> reached;
    for (qsizetype i = 0; i < 2 * controls().size(); ++i) {
        QWidget *const before = QApplication::focusWidget();
        reached.append(before);
        press("Tab");
        EXPECT_TRUE(waitUntil([&] { return QApplication::focusWidget() != before; }));
    }
    for (QWidget *const wanted : controls())
        EXPECT_TRUE(reached.contains(wanted)) << nameOf(*wanted);
    EXPECT_FALSE(reached.contains(nullptr));
}

TEST_P(EveryPage, EveryControlHasANameAndARoleForScreenReaders)
{
    openPage(GetParam());
    for (QWidget *const widget : controls()) {
        QAccessibleInterface *const element = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(element, nullptr) << nameOf(*widget);
        EXPECT_FALSE(element->text(QAccessible::Name).isEmpty()) << nameOf(*widget);
        EXPECT_NE(element->role(), QAccessible::Client) << nameOf(*widget);
    }
}

TEST_P(EveryPage, EveryFieldBelongsToItsLabel)
{
    openPage(GetParam());
    for (QWidget *const widget : controls()) {
        if (!qobject_cast<QAbstractSpinBox *>(widget) && !qobject_cast<QComboBox *>(widget))
            continue;
        bool hasLabel = false;
        for (const auto &[other, relation] :
            QAccessible::queryAccessibleInterface(widget)->relations(QAccessible::Label))
            hasLabel = hasLabel || other->role() == QAccessible::StaticText;
        EXPECT_TRUE(hasLabel) << nameOf(*widget);
    }
}

TEST_P(EveryPageInEveryLanguage, NoTwoMnemonicsAreTheSame)
{
    openPage(page());
    QStringList mnemonics;
    const auto add = [&mnemonics](const QString &text) {
        if (const QKeySequence mnemonic = QKeySequence::mnemonic(text); !mnemonic.isEmpty())
            mnemonics.append(mnemonic.toString());
    };
    for (const QAction *const menu : m_window->menuBar()->actions())
        add(menu->text());
    for (const QWidget *const widget : m_window->centralWidget()->findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        if (const auto *const button = qobject_cast<const QAbstractButton *>(widget))
            add(button->text());
        else if (const auto *const label = qobject_cast<const QLabel *>(widget); label && label->buddy())
            add(label->text());
    }
    EXPECT_GT(mnemonics.size(), 6);
    EXPECT_EQ(mnemonics.removeDuplicates(), 0) << mnemonics.join(u' ').toStdString();
}

TEST_P(EveryPageInEveryLanguage, NothingIsCutWithLargeLetters)
{
    QFont font = QApplication::font();
    font.setPointSize(22);
    QApplication::setFont(font);
    openPage(page());
    for (const QWidget *const widget : m_window->centralWidget()->findChildren<QWidget *>()) {
        const auto *const label = qobject_cast<const QLabel *>(widget);
        const bool hasText = qobject_cast<const QAbstractButton *>(widget) || (label && !label->wordWrap())
            || qobject_cast<const QAbstractSpinBox *>(widget);
        // The name of a document may be longer than any window.
        const bool mayBeCut = widget->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        if (!hasText || mayBeCut || !widget->isVisible())
            continue;
        EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << nameOf(*widget);
        EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << nameOf(*widget);
    }
    EXPECT_LE(m_window->height(), m_window->screen()->availableSize().height());
    takePicture(QStringLiteral("desk-large-%1-%2").arg(languageName()).arg(page()));
}

TEST_P(EveryPage, IsMirroredFromRightToLeft)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    openPage(GetParam());
    const auto xOf = [](const QWidget &widget) { return widget.mapToGlobal(QPoint(0, 0)).x(); };
    EXPECT_GT(xOf(control<QListWidget>("pageList")), xOf(control<QStackedWidget>("pageStack")));
    takePicture(QStringLiteral("desk-right-to-left-%1").arg(GetParam()));
}

TEST_F(AccessibilityTest, ThePageIsWhiteInTheDark)
{
    applyColorScheme(ColorScheme::Dark);
    openPage(2);
    const QImage window = m_window->grab().toImage();
    EXPECT_LT(window.pixelColor(2, window.height() - 3).lightness(), 100);
    auto &preview = control<PagePreview>("preview");
    const QImage page = preview.grab().toImage();
    EXPECT_EQ(page.pixelColor(page.width() / 2, page.height() * 3 / 4), QColor(Qt::white));
    takePicture(QStringLiteral("desk-dark"));
}

TEST_F(AccessibilityTest, ScreenReadersKnowThePreviewAsAPictureOfThatSize)
{
    openPage(2);
    QAccessibleInterface *const preview =
        QAccessible::queryAccessibleInterface(&control<PagePreview>("preview"));
    EXPECT_EQ(preview->role(), QAccessible::Graphic);
    EXPECT_EQ(preview->text(QAccessible::Description), control<PagePreview>("preview").sizeText());
}

TEST_F(AccessibilityTest, TheWindowIsAWindowWithATitle)
{
    open();
    QAccessibleInterface *const window = QAccessible::queryAccessibleInterface(&*m_window);
    EXPECT_EQ(window->role(), QAccessible::Window);
    EXPECT_EQ(window->text(QAccessible::Name), QStringLiteral("Quillbay"));
}
