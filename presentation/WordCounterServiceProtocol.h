// SPDX-License-Identifier: MIT
// WordCounterServiceProtocol sends the requests of the counting service, which docs/dbus/ describes, and
// converts its replies.
// Thread: that of the connection's owner.  Owner: the client; short-lived.
#pragma once

#include "documents/DocumentKind.h"
#include "platform/session_bus/RemoteObjectConnection.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <functional>
#include <memory>
#include <utility>

class WordCounterServiceProtocol {
public:
    /// Null: the document is not available.
    using Data = std::shared_ptr<const SealedMemory>;
    /// Called on the thread of the connections.
    using Results = std::function<void(const QBYWordCounterStats &stats)>;

    static QString serviceName();
    static RemoteObjectInterface interface();

    /// proxy: of a connection with interface().
    explicit WordCounterServiceProtocol(RemoteObjectProxy proxy)
        : m_proxy(std::move(proxy))
    {
    }

    // Count under the current locale of this process.
    /// data: a styled text as flat RTFD.
    void countWordsForAttributedStringRTFDData(Data data, Results withResults) const;
    /// data: the bytes of a Word document (.docx).
    void countWordsForDocX(Data data, Results withResults) const;

    /// Called like Results, in place of it, with the cause of a failure: English, to be printed after a
    /// colon.
    using Failed = std::function<void(const QString &cause)>;
    /// data: the bytes of a document of any kind that the service reads.
    void countDocument(DocumentKind kind, Data data, Results withResults, Failed failed) const;

private:
    void send(const QString &method, Data data, Results withResults) const;

    RemoteObjectProxy m_proxy;
};
