// SPDX-License-Identifier: MIT
// The page with paper and margins: what the user chooses, and whether its preview shows what is measured.
#include "desk/PagePreview.h"
#include "tests/desk/DeskTest.h"
#include "tests/preferences/PaperTestPrinter.h"
#include "text_statistics/MeasuringSurface.h"

#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <atomic>
#include <condition_variable>
#include <mutex>

using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

/// Made before the fixture, whose first launch asks the printer.
class PaperPageTest : public PaperTestSettings, public DeskTest {
protected:
    DeskWindow &openPage()
    {
        open();
        showPage("PaperPage");
        return *m_window;
    }

    [[nodiscard]] QStringList papers()
    {
        QStringList texts;
        const auto &box = control<QComboBox>("paperComboBox");
        for (int i = 0; i < box.count(); ++i)
            texts.append(box.itemText(i));
        return texts;
    }
    [[nodiscard]] std::string state()
    {
        return control<QWidget>("PaperPage")
            .findChild<QLabel *>(QStringLiteral("stateLabel"))
            ->text()
            .toStdString();
    }

    /// As with the keyboard: the paper that begins with these letters.
    void choose(const char *letters)
    {
        press("alt+p");
        auto &box = control<QComboBox>("paperComboBox");
        EXPECT_TRUE(waitUntil([&] { return box.hasFocus(); }));
        TestDisplay::xdotool({QStringLiteral("type"), QString::fromLatin1(letters)});
        EXPECT_TRUE(waitUntil([&] { return box.currentText().startsWith(QString::fromLatin1(letters)); }));
    }
    void typeMargin(const char *mnemonic, const char *spinBox, const char *text)
    {
        press(mnemonic);
        EXPECT_TRUE(waitUntil([&] { return control<QDoubleSpinBox>(spinBox).hasFocus(); }));
        TestDisplay::xdotool({QStringLiteral("type"), QString::fromLatin1(text)});
        press("Tab");
        EXPECT_TRUE(waitUntil([&] { return !control<QDoubleSpinBox>(spinBox).hasFocus(); }));
    }

    static quint64 measuredLines(const QString &text)
    {
        return MeasuringSurface::shared().numberOfLines(AttributedString(text), currentPageRules());
    }
};

Paper paper(const char *name, QSizeF size, bool isCustom = false)
{
    Paper paper;
    paper.ppdName = QString::fromLatin1(name);
    paper.size = size;
    paper.isCustom = isCustom;
    paper.margins = {.top = 36, .left = 18, .bottom = 36, .right = 18};
    return paper;
}

class DefaultLocale {
public:
    explicit DefaultLocale(const char *name) { QLocale::setDefault(QLocale(QString::fromLatin1(name))); }
    DefaultLocale(const DefaultLocale &) = delete;
    DefaultLocale &operator=(const DefaultLocale &) = delete;
    ~DefaultLocale() { QLocale::setDefault(m_former); }

private:
    const QLocale m_former;
};

/// Answers when it is released.
class SlowPrinter final : public PrinterSource {
public:
    Result<Printer, PrinterFailure> ask() override
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isReleased; });
        return printerWith({"Broadsheet"});
    }
    void release()
    {
        const std::lock_guard guard(m_mutex);
        m_isReleased = true;
        m_changed.notify_all();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isReleased = false;
};

} // namespace

TEST_F(PaperPageTest, ListsThePapersOfThePrinterInItsOrderAndMarksCustomOnes)
{
    Printer printerWithThree;
    printerWithThree.papers = {
        paper("Letter", {612, 792}), paper("A4", {595.276, 841.89}), paper("Poster", {720, 1440}, true)};
    setAnswer(printerWithThree);
    openPage();
    EXPECT_TRUE(waitUntil([&] { return papers().size() == 3; }));
    EXPECT_THAT(papers(),
        ElementsAre(QStringLiteral("Letter (8.5 × 11 in)"), QStringLiteral("A4 (8.27 × 11.69 in)"),
            QStringLiteral("Poster (10 × 20 in, custom)")));
    EXPECT_THAT(state(), HasSubstr("These are the papers of your printer."));
}

TEST_F(PaperPageTest, WithoutAPrinterItListsCommonPapersAndSaysSo)
{
    openPage();
    EXPECT_TRUE(waitUntil([&] { return state().find("There is no printer") != std::string::npos; }));
    EXPECT_TRUE(papers().contains(QStringLiteral("A5 (5.83 × 8.26 in)")))
        << papers().join(u';').toStdString();
}

TEST_F(PaperPageTest, ThePaperThatIsChosenIsStoredAndShown)
{
    openPage();
    choose("A5");
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("A5"));
    EXPECT_THAT(state(), HasSubstr("Lines are measured on A5."));
    EXPECT_EQ(control<QLabel>("sizeLabel").text(), QStringLiteral("5.833 x 8.264 inches"));
    press("ctrl+z");
    EXPECT_TRUE(waitUntil([] { return Controller::paperNameForLineMeasuring() != QStringLiteral("A5"); }));
}

TEST_F(PaperPageTest, MarginsAreInchesInAmericaAndMillimetresElsewhereAndStoredInInches)
{
    openPage();
    typeMargin("alt+l", "leftMarginSpinBox", "1.25");
    EXPECT_DOUBLE_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 1.25);
    const DefaultLocale german("de_DE");
    openPage();
    typeMargin("alt+r", "rightMarginSpinBox", "12,7");
    EXPECT_DOUBLE_EQ(Controller::rightMarginForPaperSizeLineMeasuring(), 0.5);
    EXPECT_EQ(control<QDoubleSpinBox>("leftMarginSpinBox").text(), QStringLiteral("31,75 mm"));
    EXPECT_DOUBLE_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 1.25);
}

TEST_F(PaperPageTest, MarginsLeaveAColumn)
{
    Controller::setCurrentPaperNamePreference(QStringLiteral("Letter"));
    Controller::setRightMarginForPaperSizeLineMeasuring(3);
    openPage();
    EXPECT_DOUBLE_EQ(control<QDoubleSpinBox>("leftMarginSpinBox").maximum(), 5);
    EXPECT_DOUBLE_EQ(control<QDoubleSpinBox>("rightMarginSpinBox").maximum(), 7.75);
}

TEST_F(PaperPageTest, APaperOnWhichTheMarginsLeaveNoColumnBringsItsOwn)
{
    Controller::setLeftMarginForPaperSizeLineMeasuring(3);
    Controller::setRightMarginForPaperSizeLineMeasuring(3);
    openPage();
    choose("A5");
    EXPECT_DOUBLE_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 0.25);
    EXPECT_DOUBLE_EQ(Controller::rightMarginForPaperSizeLineMeasuring(), 0.25);
    press("ctrl+z");
    EXPECT_TRUE(waitUntil([] { return Controller::rightMarginForPaperSizeLineMeasuring() == 3; }));
    EXPECT_DOUBLE_EQ(Controller::leftMarginForPaperSizeLineMeasuring(), 3);
}

TEST_F(PaperPageTest, ARightMarginThatIsTooWideByItselfIsReplacedToo)
{
    Controller::setLeftMarginForPaperSizeLineMeasuring(0);
    Controller::setRightMarginForPaperSizeLineMeasuring(7);
    openPage();
    choose("A5");
    EXPECT_DOUBLE_EQ(Controller::rightMarginForPaperSizeLineMeasuring(), 0.25);
}

TEST_F(PaperPageTest, MarginsFromElsewhereThatLeaveNoColumnAreShownAndReported)
{
    openPage();
    UserDefaults elsewhere(QStringLiteral("K7Q2M9X4T1.com.quillbay"));
    elsewhere.setObject(50.0, keyOf(Preference::LeftMargin));
    EXPECT_TRUE(waitUntil([&] { return control<QDoubleSpinBox>("leftMarginSpinBox").value() == 50; }));
    EXPECT_THAT(state(), HasSubstr("The margins leave no column"));
}

TEST_F(PaperPageTest, ThePreviewShowsTheLinesThatAreCounted)
{
    openPage();
    auto &preview = control<PagePreview>("preview");
    for (const double margin : {0.25, 1.0, 2.5}) {
        Controller::setLeftMarginForPaperSizeLineMeasuring(margin);
        const auto lines = static_cast<qsizetype>(measuredLines(pagePreviewSampleText()));
        EXPECT_TRUE(waitUntil([&] { return preview.visibleLines().size() == lines; })) << margin;
    }
    // The last column is narrow.
    EXPECT_GT(preview.visibleLines().size(), 25);
    EXPECT_EQ(preview.visibleLines().join(u' ').simplified(), pagePreviewSampleText().simplified());
}

TEST_F(PaperPageTest, ShowsTheTextOfTheClipboardAndTheSampleAgain)
{
    openPage();
    auto &preview = control<PagePreview>("preview");
    QGuiApplication::clipboard()->setText(QStringLiteral("First line.\nSecond line."));
    press("alt+o");
    EXPECT_TRUE(waitUntil([&] { return preview.visibleLines().size() == 2; }));
    EXPECT_THAT(
        preview.visibleLines(), ElementsAre(QStringLiteral("First line."), QStringLiteral("Second line.")));
    press("alt+s");
    EXPECT_TRUE(waitUntil([&] { return preview.visibleLines().size() > 10; }));
}

TEST_F(PaperPageTest, ThePageIsWhiteAndHasTheProportionsOfThePaper)
{
    Controller::setCurrentPaperNamePreference(QStringLiteral("Letter"));
    openPage();
    auto &preview = control<PagePreview>("preview");
    EXPECT_TRUE(waitUntil([&] { return preview.isVisible(); }));
    const QImage image = preview.grab().toImage();
    const QRgb white = qRgb(255, 255, 255);
    int width = 0;
    int height = 0;
    for (int x = 0; x < image.width(); ++x)
        width += image.pixel(x, image.height() * 3 / 4) == white;
    for (int y = 0; y < image.height(); ++y)
        height += image.pixel(image.width() - image.width() / 20, y) == white
            || image.pixel(image.width() / 2 - width / 2 + 2, y) == white;
    EXPECT_NEAR(static_cast<double>(width) / height, 612.0 / 792.0, 0.02);
}

TEST_F(PaperPageTest, AnUnavailablePaperStaysListedWhileThePrinterIsSilent)
{
    setAnswer(PrinterFailure::NotAnswering);
    Controller::setCurrentPaperNamePreference(QStringLiteral("Broadsheet"));
    openPage();
    EXPECT_TRUE(
        waitUntil([&] { return state().find("does not answer, so these are common") != std::string::npos; }));
    EXPECT_EQ(
        control<QComboBox>("paperComboBox").currentText(), QStringLiteral("Broadsheet (not available)"));
    EXPECT_THAT(state(), HasSubstr("Your paper is not available, so lines are measured on a page of"));
    EXPECT_EQ(Controller::paperNameForLineMeasuring(), QStringLiteral("Broadsheet"));
}

namespace {

class SilentPrinterTest : public DeskTest { };

} // namespace

TEST_F(SilentPrinterTest, TheWindowOpensAtOnceAndShowsThePapersWhenTheyArrive)
{
    const auto printer = std::make_shared<SlowPrinter>();
    PrintSettings settings(printer);
    const ScopedPrintSettings scope(settings);
    open(); // reaches its end only if nothing waits for the printer
    showPage("PaperPage");
    EXPECT_THAT(
        control<QWidget>("PaperPage").findChild<QLabel *>(QStringLiteral("stateLabel"))->text().toStdString(),
        HasSubstr("Asking the printing system"));
    printer->release();
    EXPECT_TRUE(waitUntil([&] {
        return control<QComboBox>("paperComboBox").findText(QStringLiteral("Broadsheet (1.39 × 2.78 in)"))
            >= 0;
    }));
    close();
}

TEST_F(SilentPrinterTest, APaperThatWasNeverChosenIsNamedAndCanBeChosen)
{
    // As after a first launch during which the printer was silent.
    const auto printer = std::make_shared<PaperTestPrinter>();
    printer->answer = PrinterFailure::NotAnswering;
    PrintSettings settings(printer);
    const ScopedPrintSettings scope(settings);
    ASSERT_TRUE(QDir(world().configuration() + QStringLiteral("/quillbay")).removeRecursively());
    Controller::configureUserDefaultsOnApplicationLaunch();
    ASSERT_EQ(Controller::paperNameForLineMeasuring(), std::nullopt);
    open();
    showPage("PaperPage");
    EXPECT_THAT(
        control<QWidget>("PaperPage").findChild<QLabel *>(QStringLiteral("stateLabel"))->text().toStdString(),
        HasSubstr("No paper has been chosen yet, so lines are measured on Letter."));
    auto &box = control<QComboBox>("paperComboBox");
    EXPECT_TRUE(box.currentText().startsWith(QStringLiteral("Letter")));
    press("alt+p");
    EXPECT_TRUE(waitUntil([&] { return box.hasFocus(); }));
    TestDisplay::xdotool({QStringLiteral("type"), QStringLiteral("A4")});
    EXPECT_TRUE(waitUntil([] { return Controller::paperNameForLineMeasuring() == QStringLiteral("A4"); }));
    close();
}
