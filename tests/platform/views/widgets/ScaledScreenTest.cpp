// SPDX-License-Identifier: MIT
#include "tests/harness/Display.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/harness/Screenshot.h"

#include <QFile>

namespace {

/// A panel of 200 by 100 points; its line runs 60 points below its top.
const char *const panel = R"(<ui version="4.0"><widget class="QWidget" name="panel">
<property name="geometry"><rect><x>0</x><y>0</y><width>200</width><height>100</height></rect></property>
<widget class="QLabel" name="words"><property name="text"><string>1,234 words</string></property>
<property name="geometry"><rect><x>10</x><y>10</y><width>150</width><height>17</height></rect></property></widget>
<widget class="QLabel" name="pages"><property name="text"><string>5 pages</string></property>
<property name="geometry"><rect><x>10</x><y>33</y><width>150</width><height>17</height></rect></property></widget>
<widget class="Line" name="line">
<property name="geometry"><rect><x>10</x><y>56</y><width>180</width><height>9</height></rect></property></widget>
<widget class="QPushButton" name="button"><property name="text"><string>Count</string></property>
<property name="geometry"><rect><x>10</x><y>70</y><width>80</width><height>24</height></rect></property></widget>
</widget></ui>)";

QRect rectOnDisplay(const QByteArray &window)
{
    const QString info = QString::fromLatin1(TestDisplay::outputOf(
        QStringLiteral("xwininfo"), {QStringLiteral("-id"), QString::fromLatin1(window)}));
    const auto number = [&info](const char *label) {
        const qsizetype start =
            info.indexOf(QString::fromLatin1(label)) + static_cast<qsizetype>(qstrlen(label));
        return info.mid(start, info.indexOf(u'\n', start) - start).trimmed().toInt();
    };
    return {number("Absolute upper-left X:"), number("Absolute upper-left Y:"), number("Width:"),
        number("Height:")};
}

/// Start and height, in points, of the rows that differ from the window's edge in the middle column, where
/// only the line is.
QPair<double, double> lineOnDisplay(const QRect &window, double scale)
{
    const QImage picture = takeScreenshot().copy(window);
    const int x = picture.width() * 19 / 20;
    int first = -1;
    int rows = 0;
    const int edge = 2 * static_cast<int>(scale); // of the window
    for (int y = edge; y < picture.height() - edge; ++y) {
        if (picture.pixelColor(x - 2 * static_cast<int>(scale), y)
            == picture.pixelColor(x - 2 * static_cast<int>(scale), edge))
            continue;
        first = rows++ == 0 ? y : first;
    }
    return {first / scale, rows / scale};
}

} // namespace

class ScaledScreen : public QuillbayTest, public ::testing::WithParamInterface<double> { };

TEST_P(ScaledScreen, ShowsAPointAsThatManyPixels)
{
    const double scale = GetParam();
    const QString path = writeFile(QStringLiteral("Panel.ui"), panel);
    ChildProcess program(testProgram(QStringLiteral("views_widgets_helper")));
    program.withVariable("DISPLAY", TestDisplay::start().toLatin1());
    program.withVariable("QT_QPA_PLATFORM", "xcb");
    program.withVariable("QT_SCALE_FACTOR", QByteArray::number(scale));
    program.start({QFile::encodeName(path)});
    const auto asked = [&program](const char *question) {
        program.writeLine(question);
        return program.readLine();
    };
    EXPECT_EQ(asked("scale").toDouble(), scale);
    const QByteArray window = asked("window");
    const QRect wanted(
        qRound(20 * scale), 800 - qRound(130 * scale), qRound(200 * scale), qRound(100 * scale));
    EXPECT_TRUE(waitUntil([&] { return rectOnDisplay(window) == wanted; }));

    EXPECT_TRUE(waitUntil([&] { return lineOnDisplay(wanted, scale).first == 60; }));
    EXPECT_NEAR(lineOnDisplay(wanted, scale).second, 1, 0.4); // whole pixels
    saveScreenshot(QStringLiteral("scale-%1").arg(scale));

    // Otherwise text would not fit into sizes measured at another scale.
    const QByteArrayList size = asked("label").split(' ');
    EXPECT_NEAR(size.value(0).toDouble(), 75, 6);
    EXPECT_NEAR(size.value(1).toDouble(), 15, 2);
}

INSTANTIATE_TEST_SUITE_P(Factors, ScaledScreen, ::testing::Values(1.0, 1.5, 2.0));
