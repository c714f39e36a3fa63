// SPDX-License-Identifier: MIT
// SandboxedReader reads documents in the program quillbay-document-reader: in a sandbox, with limits of
// memory, processor time and output in proportion to their length. This process parses none of their formats;
// it only decodes plain text itself.
// Thread: any, many at once.
#pragma once

#include "documents/loading/ReaderPool.h"
#include "documents/reading/DocumentReader.h"

#include <atomic>
#include <optional>

class SandboxedReader {
public:
    /// The path of the program: beside the running program, otherwise where it is installed relative to that.
    /// The file need not exist.
    static QByteArray defaultProgram();
    /// The reader of this process, which is never destroyed.
    static SandboxedReader &shared();

    explicit SandboxedReader(const QByteArray &program = defaultProgram())
        : m_pool(program)
    {
    }

    /// Starts the program, for a document that is expected soon. Returns at once. After the first document
    /// this is not needed: one program always waits then.
    void prepare() { m_pool.keepOneWaiting(); }

    /// The text of a document, as readDocument() returns it, and as Qt Pdf finds it on the pages of a PDF
    /// file (document_reader/PdfPages.h), which may be an empty text. Blocks until it is there. Fails as
    /// TooComplex where a limit is exceeded, as Damaged where the program crashes, as NoReader where it does
    /// not start; as Cancelled where the options' stop is requested, which kills the program. limits: absent
    /// for those of ReaderLimits::of().
    Result<AttributedString, DocumentError> read(DocumentKind kind, QByteArrayView bytes,
        const ReadOptions &options = {}, const std::optional<ReaderLimits> &limits = std::nullopt);

private:
    Result<AttributedString, DocumentError> readInProgram(const ReaderRequest &request, QByteArrayView bytes,
        const ReaderLimits &limits, const std::stop_token &stop);
    void reportMissingLandlock();

    ReaderPool m_pool;
    std::atomic<bool> m_hasReported = false;
};
