// SPDX-License-Identifier: MIT
#include "tests/front_end/ProviderTest.h"

#include "platform/services/ServiceInterface.h"

#include <QClipboard>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QGuiApplication>
#include <QMimeData>

#include <csignal>

namespace {

QByteArray xprop(const QStringList &arguments)
{
    return TestDisplay::outputOf(QStringLiteral("xprop"), arguments);
}

} // namespace

ProviderTest::ProviderTest()
{
    const QString folder = world().data() + QStringLiteral("/dbus-1/services/");
    QDir().mkpath(folder);
    QFile file(folder + ServiceInterface::busName() + QStringLiteral(".service"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[D-BUS Service]\nName=" + ServiceInterface::busName().toUtf8()
        + "\nExec=" + QFile::encodeName(productProgram(QStringLiteral("quillbay-service-provider"))) + '\n');
    file.close();
    installService();
    TestDisplay::start();
    EXPECT_TRUE(exportSessionEnvironment());
    // Moves the pointer of the last test away from the windows.
    TestDisplay::xdotool({QStringLiteral("mousemove"), QStringLiteral("640"), QStringLiteral("300")});
}

ProviderTest::~ProviderTest()
{
    while (const pid_t process = provider()) {
        ::kill(process, SIGKILL);
        waitForEnd(process);
    }
    EXPECT_TRUE(waitUntil([] { return windows().isEmpty(); }));
}

QString ProviderTest::count(const QString &text)
{
    return ask(QStringLiteral("wordCountSelectedTextService"),
        Pasteboard({{QStringLiteral("text/plain;charset=utf-8"), text.toUtf8()}}));
}

QString ProviderTest::ask(const QString &message, const Pasteboard &pasteboard, const QVariantMap &options)
{
    const std::optional<ServiceMessageFailure> failure = sendServiceMessage(message, pasteboard, options);
    return failure ? causeText(*failure) : QString();
}

pid_t ProviderTest::provider() const
{
    const QDBusReply<uint> process = m_bus.interface()->servicePid(ServiceInterface::busName());
    return process.isValid() ? static_cast<pid_t>(process.value()) : 0;
}

void ProviderTest::startProvider() const
{
    EXPECT_TRUE(m_bus.interface()->startService(ServiceInterface::busName()).isValid());
    EXPECT_NE(provider(), 0);
}

void ProviderTest::waitForEnd(pid_t process) const
{
    EXPECT_TRUE(waitUntil([&] { return provider() != process && !isRunning(process); }));
}

QStringList ProviderTest::windows(const QString &title)
{
    const QString list =
        QString::fromLatin1(xprop({QStringLiteral("-root"), QStringLiteral("_NET_CLIENT_LIST_STACKING")}));
    QStringList found;
    for (const QString &identifier : list.section(u'#', 1).split(u',')) {
        const QString window = identifier.trimmed();
        if (!window.startsWith(u"0x"))
            continue;
        // It may exit meanwhile, which is no failure.
        QProcess process;
        process.start(QStringLiteral("xprop"),
            {QStringLiteral("-id"), window, QStringLiteral("-notype"), QStringLiteral("_NET_WM_NAME")});
        process.waitForFinished();
        if (QString::fromUtf8(process.readAllStandardOutput()).section(u'"', 1, -2) == title)
            found.append(window);
    }
    return found;
}

QStringList ProviderTest::waitForWindows(qsizetype number, const QString &title)
{
    QStringList found;
    EXPECT_TRUE(waitUntil([&] {
        found = windows(title);
        return found.size() == number;
    })) << found.join(u' ').toStdString();
    return found;
}

QRect ProviderTest::rectOf(const QString &window)
{
    const QByteArray info =
        TestDisplay::outputOf(QStringLiteral("xwininfo"), {QStringLiteral("-id"), window});
    const auto number = [&info](const char *label) {
        const qsizetype start = info.indexOf(label) + static_cast<qsizetype>(qstrlen(label));
        return info.mid(start, info.indexOf('\n', start) - start).trimmed().toInt();
    };
    return {number("Absolute upper-left X:"), number("Absolute upper-left Y:"), number("Width:"),
        number("Height:")};
}

QString ProviderTest::activeWindow()
{
    const QString line =
        QString::fromLatin1(xprop({QStringLiteral("-root"), QStringLiteral("_NET_ACTIVE_WINDOW")}));
    return line.section(u'#', 1).trimmed();
}

void ProviderTest::click(const QString &window, int x, int y)
{
    const QPoint place = rectOf(window).topLeft() + QPoint(x, y);
    TestDisplay::xdotool({QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()),
        QStringLiteral("click"), QStringLiteral("1")});
}

void ProviderTest::press(const char *key)
{
    TestDisplay::xdotool({QStringLiteral("key"), QString::fromLatin1(key)});
}

void ProviderTest::drag(const QString &window, const QPoint &place)
{
    const QPoint start = rectOf(window).topLeft() + place;
    TestDisplay::xdotool({QStringLiteral("mousemove"), QString::number(start.x()), QString::number(start.y()),
        QStringLiteral("mousedown"), QStringLiteral("1")});
    for (int i = 0; i < 12; ++i)
        TestDisplay::xdotool({QStringLiteral("mousemove_relative"), QStringLiteral("--"),
            QStringLiteral("10"), QStringLiteral("-5"), QStringLiteral("sleep"), QStringLiteral("0.02")});
    TestDisplay::xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
}

bool ProviderTest::showsNumbers(const QString &window)
{
    // Without numbers there is only background below the title row.
    const QImage image = takeScreenshot().copy(rectOf(window).adjusted(2, 31, -2, -2));
    const QRgb ground = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != ground)
                return true;
        }
    }
    return false;
}

void ProviderTest::waitForNumbers(const QString &window)
{
    EXPECT_TRUE(waitUntil([&] { return showsNumbers(window); }));
}

QString ProviderTest::copied()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    press("ctrl+c");
    QString text;
    EXPECT_TRUE(waitUntil([&] {
        text = QGuiApplication::clipboard()->text();
        return text != QStringLiteral("before") && !text.isEmpty();
    }));
    return text;
}
