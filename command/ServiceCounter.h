// SPDX-License-Identifier: MIT
// ServiceCounter counts documents in the counting service, as the windows of the product do, and waits for
// the answers. Thread: one, not that of the connections.  Owner: the count command.
#pragma once

#include "platform/session_bus/RemoteObjectConnection.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"
#include "presentation/WordCounterServiceProtocol.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QByteArrayView>

enum class CountServiceFailure {
    NoAnswer, ///< there is no service, or it failed twice; the log tells more
    NotEnoughMemory, ///< to hand the document over
};

/// The cause in English, on one line, to stand behind the document's name.
QString causeText(CountServiceFailure failure);

class ServiceCounter {
public:
    ServiceCounter();

    // Wait for the answer as long as the count takes. What the service could not count has eight zeros.
    Result<QBYWordCounterStats, CountServiceFailure> countText(const AttributedString &text);
    /// bytes: of a .docx file.
    Result<QBYWordCounterStats, CountServiceFailure> countWordDocument(QByteArrayView bytes);

private:
    using Request = void (WordCounterServiceProtocol::*)(
        WordCounterServiceProtocol::Data, WordCounterServiceProtocol::Results) const;
    Result<QBYWordCounterStats, CountServiceFailure> count(Request request, QByteArrayView payload);

    RemoteObjectConnection m_connection;
};
