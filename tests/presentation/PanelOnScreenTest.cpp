// SPDX-License-Identifier: MIT
// The statistics panel on the screen, in a real window of another program.
#include "tests/harness/Display.h"
#include "tests/harness/FakePortal.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/harness/Screenshot.h"
#include "tests/presentation/StatsPanel.h"

#include <QFile>

namespace {

/// The interface file of a host: %1 is the label position policy.
const char *const hostInterface = R"(<ui version="4.0"><widget class="QWidget" name="host">
<property name="geometry"><rect><x>0</x><y>0</y><width>260</width><height>238</height></rect></property>
<widget class="QWidget" name="statsPanel">
<property name="geometry"><rect><x>0</x><y>0</y><width>260</width><height>238</height></rect></property>
<property name="labelPositionPolicy" stdset="0"><number>%1</number></property>
</widget></widget></ui>)";

constexpr uint darkScheme = 1;
constexpr uint lightScheme = 2;

/// A host in a process of its own, and its window on the display.
class HostProgram {
public:
    explicit HostProgram(const QString &interfaceFile, double scale = 1)
        : m_program(testProgram(QStringLiteral("stats_panel_host")))
    {
        m_program.withVariable("DISPLAY", TestDisplay::start().toLatin1());
        m_program.withVariable("QT_QPA_PLATFORM", "xcb");
        m_program.withVariable("QT_SCALE_FACTOR", QByteArray::number(scale));
        m_program.start({QFile::encodeName(interfaceFile)});
        m_window = QString::fromLatin1(m_program.readLine());
    }

    /// In pixels of the display, from the top left.
    [[nodiscard]] QRect rectOnDisplay() const
    {
        const QByteArray info =
            TestDisplay::outputOf(QStringLiteral("xwininfo"), {QStringLiteral("-id"), m_window});
        const auto number = [&info](const char *label) {
            const qsizetype start = info.indexOf(label) + static_cast<qsizetype>(qstrlen(label));
            return info.mid(start, info.indexOf('\n', start) - start).trimmed().toInt();
        };
        return info.contains("IsViewable") ? QRect(number("Absolute upper-left X:"),
                   number("Absolute upper-left Y:"), number("Width:"), number("Height:"))
                                           : QRect();
    }

    /// In points from the bottom left: x, y, width, height.
    QList<double> frame()
    {
        m_program.writeLine("frame");
        QList<double> numbers;
        for (const QByteArray &number : m_program.readLine().split(' '))
            numbers.append(number.toDouble());
        return numbers;
    }

private:
    ChildProcess m_program;
    QString m_window;
};

QString hostFile(WordCounterLabelPositionPolicy policy)
{
    const QString path = TestHome::instance().root() + QStringLiteral("/Host.ui");
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QString::fromLatin1(hostInterface).arg(static_cast<qint64>(policy)).toUtf8());
    return path;
}

/// How many of the pixels in a rectangle are about as dark as the one in its corner.
double shareOfBackground(const QImage &image, const QRect &rect)
{
    const int background = image.pixelColor(rect.topLeft()).lightness();
    int equal = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            equal += std::abs(image.pixelColor(x, y).lightness() - background) < 24;
    }
    return static_cast<double>(equal) / (rect.width() * rect.height());
}

} // namespace

class PanelOnScreen
    : public QuillbayTest,
      public ::testing::WithParamInterface<std::tuple<WordCounterLabelPositionPolicy, uint, double>> { };

TEST_P(PanelOnScreen, ShowsItsLabelsUnderEveryPolicyThemeAndScale)
{
    const auto [policy, scheme, scale] = GetParam();
    SessionBus::start();
    const FakePortal portal(scheme);
    preferOnly(everyStatistic);
    HostProgram host(hostFile(policy), scale);
    const auto isDrawn = [&] {
        // Without the edge of the window.
        const QRect rect = host.rectOnDisplay().adjusted(2, 2, -2, -2);
        if (!rect.isValid())
            return false;
        const QImage image = takeScreenshot();
        const bool isDark = image.pixelColor(rect.topLeft()).lightness() < 128;
        const double background = shareOfBackground(image, rect);
        return isDark == (scheme == darkScheme) && background > 0.6 && background < 0.97;
    };
    EXPECT_TRUE(waitUntil(isDrawn)) << "labels are drawn on a background of the theme";
    saveScreenshot(QStringLiteral("panel-%1-%2-%3x")
                       .arg(policy == 0 ? QStringLiteral("slots") : QStringLiteral("stacked"),
                           scheme == darkScheme ? QStringLiteral("dark") : QStringLiteral("light"))
                       .arg(scale));
    EXPECT_NEAR(host.rectOnDisplay().width(), host.frame().at(2) * scale, 1);
}

INSTANTIATE_TEST_SUITE_P(Looks, PanelOnScreen,
    ::testing::Combine(
        ::testing::Values(WordCounterLabelPositionPolicySlots, WordCounterLabelPositionPolicyStacked),
        ::testing::Values(lightScheme, darkScheme), ::testing::Values(1.0, 2.0)));

class PanelWindow : public QuillbayTest { };

TEST_F(PanelWindow, KeepsItsBottomLeftCornerWhenAnotherProcessHidesAStatistic)
{
    SessionBus::start();
    preferOnly(everyStatistic);
    HostProgram host(hostFile(WordCounterLabelPositionPolicyStacked));
    EXPECT_TRUE(waitUntil([&host] { return !host.rectOnDisplay().isNull(); }));
    const QRect before = host.rectOnDisplay();
    ChildProcess(testProgram(QStringLiteral("preference_user"))).run({}, "hide lines\n");
    EXPECT_TRUE(waitUntil([&] { return host.rectOnDisplay().height() < before.height(); }));
    const QRect after = host.rectOnDisplay();
    EXPECT_EQ(after.left(), before.left());
    EXPECT_EQ(after.bottom(), before.bottom());
    EXPECT_EQ(after.width(), before.width());
}
