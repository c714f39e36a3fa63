// SPDX-License-Identifier: MIT
// AsyncCountTest is the fixture of tests of asynchronous counts: a stand-in for the service, a text,
// completions.
// Thread: main.  Owner: the test.
#pragma once

#include "tests/platform/session_bus/ServiceStandIn.h"
#include "tests/presentation/CountingPanel.h"

#include <memory>

class AsyncCountTest : public QuillbayTest {
protected:
    static std::unique_ptr<ServiceStandIn> standIn(const QByteArrayList &plan)
    {
        return std::make_unique<ServiceStandIn>(WordCounterServiceProtocol::serviceName(), plan);
    }

    /// Increments completions().
    WordCounterViewController::Completion completion()
    {
        return [completions = m_completions] { ++*completions; };
    }
    [[nodiscard]] size_t completions() const { return *m_completions; }
    void waitForCompletions(size_t number) const
    {
        EXPECT_TRUE(waitUntil([this, number] { return completions() >= number; }));
        EXPECT_EQ(completions(), number);
    }

    void count(const CountingPanel &panel)
    {
        panel.controller->asyncUpdateStatsWithAttributedString(text, completion());
    }
    void countDocument(const CountingPanel &panel, const QUrl &url)
    {
        panel.controller->asyncUpdateStatsDocXFileURL(url, completion());
    }

    const AttributedString text{QStringLiteral("A text.")};
    const QStringList oneToEight = textsFor({1, 2, 3, 4, 5, 6, 7, 8});
    RecordingLogSink m_log;

private:
    std::shared_ptr<size_t> m_completions = std::make_shared<size_t>(0);
};
