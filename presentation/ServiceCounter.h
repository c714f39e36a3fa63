// SPDX-License-Identifier: MIT
// ServiceCounter counts documents in the counting service, as the windows do, and blocks until each answer.
// Thread: one, other than that of the connections.  Owner: the count command.
#pragma once

#include "documents/DocumentKind.h"
#include "platform/session_bus/RemoteObjectConnection.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QByteArrayView>

class ServiceCounter {
public:
    ServiceCounter();

    // Block without a timeout. The error is the cause in English, on one line, for use after "document: ".
    Result<QBYWordCounterStats, QString> countText(const AttributedString &text);
    /// The service reads the document.
    Result<QBYWordCounterStats, QString> countDocument(DocumentKind kind, QByteArrayView bytes);

private:
    RemoteObjectConnection m_connection;
};
