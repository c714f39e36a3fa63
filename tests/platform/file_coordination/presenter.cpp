// SPDX-License-Identifier: MIT
// presenter FILE: presents the file with a fake clock. For each line of standard input it prints the reports
// since the last line, separated by commas and ended by a point: for "read", after it has read the file with
// a coordinator; for a number of milliseconds, after it has advanced the clock.
#include "tests/platform/file_coordination/FakeClock.h"
#include "tests/platform/file_coordination/RecordingPresenter.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    FakeClock clock;
    RecordingPresenter presenter(application.arguments().value(1));
    FileCoordinator::addFilePresenter(&presenter, clock);
    FileCoordinator coordinator(&presenter, clock);
    QTextStream input(stdin);
    QTextStream output(stdout);
    for (QString line = input.readLine(); !line.isNull(); line = input.readLine()) {
        QCoreApplication::processEvents();
        if (line == QStringLiteral("read"))
            (void)coordinator.coordinateReadingItemAtURL(presenter.presentedItemURL(), [](const QUrl &) {});
        else
            clock.advance(std::chrono::milliseconds(line.toInt()));
        output << presenter.takeNews().join(u',') << '.' << Qt::endl;
    }
    return 0;
}
