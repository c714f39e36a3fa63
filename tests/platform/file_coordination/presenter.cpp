// SPDX-License-Identifier: MIT
// presenter FILE: presents the file under a fake clock. For each line of standard input, a number of
// milliseconds, it moves the clock on and prints the news of that time, separated by commas and ended by a
// point.
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
    QTextStream input(stdin);
    QTextStream output(stdout);
    for (QString line = input.readLine(); !line.isNull(); line = input.readLine()) {
        QCoreApplication::processEvents();
        clock.advance(std::chrono::milliseconds(line.toInt()));
        output << presenter.takeNews().join(u',') << '.' << Qt::endl;
    }
    return 0;
}
