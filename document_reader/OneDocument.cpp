// SPDX-License-Identifier: MIT
#include "document_reader/OneDocument.h"

#include "document_reader/PdfDocument.h"
#include "documents/flat_text/FlatTextWriter.h"
#include "documents/loading/ReaderMessages.h"
#include "documents/reading/DocumentReader.h"
#include "platform/system/PacketSocket.h"
#include "platform/system/SealedMemory.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <new>
#include <span>

namespace {

using Text = Result<AttributedString, DocumentError>;
using Cause = DocumentError::Cause;

/// The memory file for the text, mapped. Its owner sets its size before it sends the request, and seals it as
/// soon as nothing is mapped any more.
class ResultMemory {
public:
    ResultMemory()
    {
        const off_t size = ::lseek(ReaderMessages::resultMemory, 0, SEEK_END);
        if (size <= 0)
            return;
        void *const mapping = ::mmap(nullptr, static_cast<size_t>(size), PROT_READ | PROT_WRITE, MAP_SHARED,
            ReaderMessages::resultMemory, 0);
        if (mapping != MAP_FAILED)
            m_bytes = {static_cast<char *>(mapping), static_cast<size_t>(size)};
    }
    ResultMemory(const ResultMemory &) = delete;
    ResultMemory &operator=(const ResultMemory &) = delete;
    ~ResultMemory()
    {
        if (!m_bytes.empty())
            ::munmap(m_bytes.data(), m_bytes.size());
    }

    [[nodiscard]] std::span<char> bytes() const { return m_bytes; } ///< empty if it is missing

private:
    std::span<char> m_bytes;
};

Text readText(const ReaderRequest &request, QByteArrayView document, qsizetype maxLength)
{
    return request.kind == DocumentKind::Pdf
        ? readPdfDocument(document, maxLength)
        : readDocument(request.kind, document, {.charset = request.charset});
}

ReaderReply replyTo(const ReaderRequest &request, int descriptor)
{
    // Nothing else reads the environment.
    ::setenv("LC_ALL", request.localeName.constData(), 1);
    const auto document = SealedMemory::receive(descriptor, request.length);
    const ResultMemory result;
    if (!document || result.bytes().empty())
        return {DocumentError(Cause::NotEnoughMemory, request.kind)};
    // The limits of memory are in proportion to the document.
    const DocumentError tooComplex(Cause::TooComplex, request.kind);
    try {
        const auto maxLength = static_cast<qsizetype>(result.bytes().size() / sizeof(QChar));
        const Text text = readText(request, document.value().bytes(), maxLength);
        if (!text)
            return {text.error().cause == Cause::NotEnoughMemory ? tooComplex : text.error()};
        const std::optional<qsizetype> length = writeFlatText(text.value(), result.bytes());
        if (!length)
            return {tooComplex};
        return {static_cast<quint64>(*length)};
    } catch (const std::bad_alloc &) {
        return {tooComplex};
    }
}

} // namespace

void loadEverythingThatReadersNeed()
{
    (void)readDocument(DocumentKind::PlainText, "\xE9t\xE9");
    (void)readDocument(DocumentKind::Rtf, R"({\rtf1\ansi{\fonttbl\f0 Times;}\f0\'e9t\'e9})");
    (void)readDocument(DocumentKind::Html, "<p>t\xC3\xA9");
}

int serveOneDocument(const SandboxReport &sandbox)
{
    const ReaderGreeting greeting{.hasLandlock = sandbox.landlockVersion > 0};
    if (!sendPacket(ReaderMessages::socket, encode(greeting)))
        return 1;
    const Result<Packet, PacketError> packet = receivePacket(ReaderMessages::socket);
    if (!packet)
        return packet.error() == PacketError::Closed ? 0 : 1;
    const std::optional<ReaderRequest> request = decodeReaderRequest(packet.value().message);
    if (!request || !packet.value().descriptor)
        return 1;
    const bool isConfined = sandbox.isSufficient();
    const ReaderReply reply = isConfined ? replyTo(*request, packet.value().descriptor.get())
                                         : ReaderReply{DocumentError(Cause::NoSandbox, request->kind)};
    return sendPacket(ReaderMessages::socket, encode(reply)) ? 0 : 1;
}
