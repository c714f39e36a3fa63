// SPDX-License-Identifier: MIT
// ServiceCounter counts documents in the counting service, as the windows do, and blocks until each answer.
// Thread: one, other than that of the connections.  Owner: the count command.
#pragma once

#include "platform/session_bus/RemoteObjectConnection.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"
#include "presentation/WordCounterServiceProtocol.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QByteArrayView>

enum class CountServiceFailure {
    NoAnswer, ///< the service does not exist or failed twice; see the log
    NotEnoughMemory, ///< for the copy of the document that is sent
};

/// The cause in English, on one line, for use after "document: ".
QString causeText(CountServiceFailure failure);

class ServiceCounter {
public:
    ServiceCounter();

    // Block without a timeout. A document that the service cannot count has eight zeros.
    Result<QBYWordCounterStats, CountServiceFailure> countText(const AttributedString &text);
    /// bytes: of a .docx file.
    Result<QBYWordCounterStats, CountServiceFailure> countWordDocument(QByteArrayView bytes);

private:
    using CountRequest = void (WordCounterServiceProtocol::*)(
        WordCounterServiceProtocol::Data, WordCounterServiceProtocol::Results) const;
    Result<QBYWordCounterStats, CountServiceFailure> count(CountRequest request, QByteArrayView payload);

    RemoteObjectConnection m_connection;
};
