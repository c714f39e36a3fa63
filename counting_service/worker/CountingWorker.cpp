// SPDX-License-Identifier: MIT
#include "counting_service/worker/CountingWorker.h"

#include "documents/reading/DocumentReader.h"
#include "platform/locale/CurrentLocale.h"
#include "platform/system/PacketSocket.h"
#include "platform/system/Processors.h"
#include "platform/system/SealedMemory.h"
#include "text_statistics/MeasuringSurface.h"

#include <cstdlib>
#include <new>

namespace {

// The identifier in a process whose user has logged in with this locale. Nothing else reads the environment
// of a worker between two documents.
QString identifierOfLocale(const QByteArray &name)
{
    ::setenv("LC_ALL", name.constData(), 1);
    return currentLocaleIdentifier();
}

CountingRules rulesFrom(const RulesSnapshot &snapshot)
{
    CountingRules rules;
    rules.text.localeIdentifier = [identifier = identifierOfLocale(snapshot.localeName)] {
        return identifier;
    };
    rules.text.minimumSentencesOfParagraph = snapshot.minimumSentencesOfParagraph;
    rules.text.sentencesNeedTerminalPunctuation = snapshot.sentencesNeedTerminalPunctuation;
    rules.page = snapshot.page;
    return rules;
}

} // namespace

CountingWorker::CountingWorker()
    : m_rules(rulesFrom(RulesSnapshot()))
    , m_model([this] { return m_rules; })
    , m_processors(availableProcessors())
{
    m_model.rememberParagraphs();
}

int CountingWorker::run(const SandboxReport &sandbox)
{
    m_isConfined = sandbox.isSufficient();
    if (!sendPacket(socket, encode(WorkerGreeting{sandbox})))
        return 1;
    for (;;) {
        const Result<Packet, PacketError> packet = receivePacket(socket);
        if (!packet)
            return packet.error() == PacketError::Closed ? 0 : 1;
        const std::optional<WorkerRequest> request = decodeRequest(packet.value().message);
        if (!request || !packet.value().descriptor)
            return 1;
        const WorkerReply reply = replyTo(*request, packet.value().descriptor.get());
        if (!sendPacket(socket, encode(reply)))
            return 1;
        // Fragmented memory might fail the next document, too.
        if (!reply.counts && reply.counts.error().isOutOfMemory())
            return 1;
    }
}

void CountingWorker::loadFonts(FontAccess access)
{
    // A count of a few letters creates everything that counts need.
    m_model.setAttributedStringToCount(AttributedString(QStringLiteral("One. Two.")));
    if (access == FontAccess::Once)
        MeasuringSurface::shared().engine().loadAllFonts();
    else
        m_model.startThreads(m_processors); // which must open fonts of their own later
}

WorkerReply CountingWorker::replyTo(const WorkerRequest &request, int descriptor)
{
    try {
        return {request.number, count(request, descriptor)};
    } catch (const std::bad_alloc &) {
        return {
            request.number, CountFailure(DocumentError(DocumentError::Cause::NotEnoughMemory, request.kind))};
    }
}

Result<QBYWordCounterStats, CountFailure> CountingWorker::count(const WorkerRequest &request, int descriptor)
{
    if (!m_isConfined)
        return CountFailure(DocumentError(DocumentError::Cause::NoSandbox, request.kind));
    const SealedMemory::MemoryResult memory = SealedMemory::receive(descriptor, request.length);
    if (!memory)
        return CountFailure(CountFailure::Cause::NotReceived);
    const Result<AttributedString, DocumentError> text =
        readDocument(request.kind, memory.value().bytes(), {.charset = request.charset});
    if (!text)
        return CountFailure(text.error());
    // Counting has a limit of its own. If the broker has gone, the reply cannot be sent either.
    (void)sendPacket(socket, encode(WorkerProgress{request.number}));
    m_rules = rulesFrom(request.rules);
    m_model.setAttributedStringToCount(text.value());
    const QBYWordCounterStats stats = m_model.statsRepresentation();
    // The text of one document must not stay in memory while the next is read.
    m_model.setAttributedStringToCount(std::nullopt);
    return stats;
}
