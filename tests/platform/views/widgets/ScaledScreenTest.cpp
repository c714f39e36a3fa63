// SPDX-License-Identifier: MIT
#include "tests/harness/Display.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/harness/Screenshot.h"

#include <QFile>

namespace {

/// A panel of 200 by 100 points with three labels and a black box of 40 by 20 at its bottom right corner.
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
        const qsizetype start = info.indexOf(QString::fromLatin1(label)) + qsizetype(qstrlen(label));
        return info.mid(start, info.indexOf(u'\n', start) - start).trimmed().toInt();
    };
    return {number("Absolute upper-left X:"), number("Absolute upper-left Y:"), number("Width:"),
        number("Height:")};
}

} // namespace

class ScaledScreen : public QuillbayTest, public ::testing::WithParamInterface<double> { };

TEST_P(ScaledScreen, ShowsPointsAsThatManyPixels)
{
    const QString path = writeFile(QStringLiteral("Panel.ui"), panel);
    ChildProcess program(testProgram(QStringLiteral("views_widgets_helper")));
    program.withVariable("DISPLAY", TestDisplay::start().toLatin1());
    program.withVariable("QT_QPA_PLATFORM", "xcb");
    program.withVariable("QT_SCALE_FACTOR", QByteArray::number(GetParam()));
    program.start({QFile::encodeName(path)});
    const auto asked = [&program](const char *question) {
        program.writeLine(question);
        return program.readLine();
    };
    EXPECT_EQ(asked("scale").toDouble(), GetParam());
    const QByteArray window = asked("window");
    const QRect wanted(qRound(20 * GetParam()), 800 - qRound(30 * GetParam()) - qRound(100 * GetParam()),
        qRound(200 * GetParam()), qRound(100 * GetParam()));
    EXPECT_TRUE(waitUntil([&] { return rectOnDisplay(window).size() == wanted.size(); }));
    EXPECT_NEAR(rectOnDisplay(window).x(), wanted.x(), 1);
    EXPECT_NEAR(rectOnDisplay(window).y(), wanted.y(), 1);
    asked("label");
    saveScreenshot(QStringLiteral("scale-%1").arg(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Factors, ScaledScreen, ::testing::Values(1.0, 1.5, 2.0));
