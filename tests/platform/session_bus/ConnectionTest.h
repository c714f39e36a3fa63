// SPDX-License-Identifier: MIT
// ConnectionTest is the fixture of tests of connections: a service's name and interface, requests, and the
// log.
// Thread: main.
#pragma once

#include "platform/session_bus/RemoteObjectConnection.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/session_bus/RecordedReplies.h"
#include "tests/platform/session_bus/ServiceStandIn.h"

#include <QDir>

inline const QString standInName = QStringLiteral("com.quillbay.test.Service");
inline const RemoteReply counts = {1, 2, 3, 4, 5, 6, 7, 8};

class ConnectionTest : public QuillbayTest {
protected:
    static std::unique_ptr<RemoteObjectConnection> resumedConnection()
    {
        auto connection = std::make_unique<RemoteObjectConnection>(standInName);
        connection->setRemoteObjectInterface(
            {QStringLiteral("/com/quillbay/test"), QStringLiteral("com.quillbay.test.Counting")});
        connection->resume();
        return connection;
    }

    static RemoteRequest request(const QByteArray &payload = "text")
    {
        auto memory = SealedMemory::copyOf(payload);
        EXPECT_TRUE(memory);
        return {.method = QStringLiteral("count"),
            .payload = std::make_shared<const SealedMemory>(std::move(memory).value()),
            .options = {}};
    }

    void send(const RemoteObjectConnection &connection, const QByteArray &payload = "text")
    {
        connection.remoteObjectProxy().send(request(payload), m_replies.handler());
    }

    void waitForLogLines(qsizetype count)
    {
        EXPECT_TRUE(waitUntil([this, count] { return m_log.messages().size() >= count; }));
    }

    /// The number of open descriptors of this process.
    static qsizetype openDescriptors()
    {
        return QDir(QStringLiteral("/proc/self/fd"))
            .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
            .size();
    }

    RecordingLogSink m_log; // must outlive the connections of a test
    RecordedReplies m_replies;
};
