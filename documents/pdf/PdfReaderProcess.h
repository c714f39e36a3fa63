// SPDX-License-Identifier: MIT
// PdfReaderProcess is one run of the program that reads PDF files.
// Thread: any; one at a time. The program ends with the thread that started it.  Owner: PdfReader.
#pragma once

#include "documents/pdf/PdfReaderOrder.h"
#include "platform/system/OwnedDescriptor.h"
#include "platform/system/Processes.h"
#include "platform/system/Result.h"

#include <QByteArrayView>
#include <QString>

#include <chrono>

class PdfReaderProcess {
public:
    /// Starts it on a copy of the bytes.
    static Result<PdfReaderProcess, DocumentError::Cause> start(
        const QByteArray &program, QByteArrayView bytes, const PdfReaderOrder &order);

    PdfReaderProcess(PdfReaderProcess &&other) noexcept;
    PdfReaderProcess &operator=(PdfReaderProcess &&) = delete;
    /// Kills it where it still runs.
    ~PdfReaderProcess();

    /// Waits for the whole text and the end of the program. One that does not end in the real time of its
    /// order, or writes more than it may, is killed.
    Result<QString, DocumentError::Cause> readText();

private:
    using Clock = std::chrono::steady_clock;

    PdfReaderProcess(LaunchedChild child, OwnedDescriptor pipe, const PdfReaderOrder &order);
    bool isReadyInTime(int descriptor) const;
    /// False where it takes too long or writes too much.
    bool readToEnd(QString &text) const;
    /// The status of waitpid().
    int end(bool isKilled);

    pid_t m_process; ///< 0 once it has ended
    OwnedDescriptor m_pipe; ///< the end that we read
    OwnedDescriptor m_processFile; ///< readable once the program has ended
    qint64 m_longest;
    Clock::time_point m_deadline;
};
