// SPDX-License-Identifier: MIT
// ReaderProcess is one run of the program quillbay-document-reader, which reads one document in a sandbox. It
// trusts nothing that the program sends; choosing the limits and keeping a process ready are left to
// SandboxedReader and ReaderPool.
// Thread: any, one at a time. The system kills the program when the thread that started it exits.
#pragma once

#include "documents/loading/ReaderMessages.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/OwnedDescriptor.h"
#include "platform/system/Result.h"

#include <QByteArrayView>

#include <chrono>

#include <sys/types.h>

struct ReaderLimits {
    std::chrono::seconds processorTime{};
    std::chrono::seconds realTime{};
    qint64 memory = 0; ///< bytes of writable memory
    qint64 output = 0; ///< bytes of flat text

    /// In proportion to the length of the document, in bytes.
    static ReaderLimits of(DocumentKind kind, qsizetype length);
};

class ReaderProcess {
public:
    /// Returns as soon as the program runs. Fails as NoReader or NotEnoughMemory.
    static Result<ReaderProcess, DocumentError::Cause> start(const QByteArray &program);

    ReaderProcess(ReaderProcess &&other) noexcept;
    ReaderProcess &operator=(ReaderProcess &&other) noexcept;
    /// Kills the program if it still runs, and waits for its end.
    ~ReaderProcess();

    /// Readable once the program has ended.
    [[nodiscard]] int processFile() const { return m_processFile.get(); }
    [[nodiscard]] bool hasEnded() const;

    /// Ends the program: receiveGreeting() and read() fail soon, and wasKilled() is true.
    /// Thread: any, while another thread waits for the program.
    void kill() const;

    /// Waits until the program is ready; false if it ends before, or takes longer than a minute. Call it
    /// before read().
    bool receiveGreeting();
    /// Of the program's greeting.
    [[nodiscard]] bool hasLandlock() const { return m_hasLandlock; }

    /// Whether read() has failed because someone killed the program, which says nothing about the document.
    [[nodiscard]] bool wasKilled() const { return m_wasKilled; }

    /// Blocks until the text is there. To be called once. Fails as NoReader where the program has ended
    /// before it could get the document; TooComplex where it exceeds a limit; Damaged where it crashes over
    /// the document or sends anything but a text.
    Result<AttributedString, DocumentError> read(
        const ReaderRequest &request, QByteArrayView document, const ReaderLimits &limits);

private:
    ReaderProcess(pid_t process, OwnedDescriptor processFile, OwnedDescriptor socket, OwnedDescriptor result)
        : m_process(process)
        , m_processFile(std::move(processFile))
        , m_socket(std::move(socket))
        , m_result(std::move(result))
    {
    }

    /// Why the program did not get the document; absent if it did.
    [[nodiscard]] std::optional<DocumentError::Cause> send(
        const ReaderRequest &request, QByteArrayView document, const ReaderLimits &limits);
    [[nodiscard]] DocumentError::Cause causeOfEnd();
    [[nodiscard]] std::optional<AttributedString> receiveText(quint64 length) const;
    /// The status of waitpid().
    int end();

    pid_t m_process; ///< 0 once it has been reaped
    OwnedDescriptor m_processFile;
    OwnedDescriptor m_socket;
    OwnedDescriptor m_result; ///< the memory file for the text
    bool m_hasLandlock = false;
    bool m_wasKilled = false;
};
