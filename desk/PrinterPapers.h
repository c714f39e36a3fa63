// SPDX-License-Identifier: MIT
// PrinterPapers asks for the user's papers in the background and reports when they have changed; the window
// never waits for the printing system.
// Thread: main.  Owner: main(), or a test.
#pragma once

#include "platform/printing/PrintSettings.h"

#include <QObject>
#include <QTimer>

class PrinterPapers : public QObject {
    Q_OBJECT

public:
    /// From now on, calls to the shared print settings do not wait.
    PrinterPapers();

    [[nodiscard]] const PrinterAnswer &answer() const { return m_answer; }
    /// Whether the printing system has not answered yet.
    [[nodiscard]] bool isWaiting() const;

    /// Asks again unless that was less than a minute ago.
    void refresh();

Q_SIGNALS:
    void changed();

private:
    PrinterAnswer m_answer;
    QTimer m_poll; // while a query is running
};
