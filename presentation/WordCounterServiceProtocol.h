// SPDX-License-Identifier: MIT
// WordCounterServiceProtocol is what the counting service can be asked, as docs/dbus/ describes it: to count
// a document that the sender hands over. Thread: that of its connection's owner.  Owner: whoever asks.
#pragma once

#include "platform/session_bus/RemoteObjectConnection.h"

#include <memory>
#include <utility>

class WordCounterServiceProtocol {
public:
    /// Null: the document could not be had.
    using Data = std::shared_ptr<const SealedMemory>;
    /// Given the eight counts in the order of QBYWordCounterStats, on the thread of the connections.
    using Results = RemoteReplyHandler;

    static QString serviceName();
    static RemoteObjectInterface interface();

    /// proxy: made under interface().
    explicit WordCounterServiceProtocol(RemoteObjectProxy proxy)
        : m_proxy(std::move(proxy))
    {
    }

    // Under the locale that the process has at the call.
    /// data: a styled text as flat RTFD.
    void countWordsForAttributedStringRTFDData(Data data, Results withResults) const;
    /// data: the bytes of a Word document (.docx).
    void countWordsForDocX(Data data, Results withResults) const;

private:
    void send(const QString &method, Data data, Results withResults) const;

    RemoteObjectProxy m_proxy;
};
