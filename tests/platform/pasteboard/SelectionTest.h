// SPDX-License-Identifier: MIT
// SelectionTest is the fixture of tests that read the selections of a private display.
// Thread: main.
#pragma once

#include "documents/loading/PasteboardText.h"
#include "platform/pasteboard/Selection.h"
#include "tests/harness/Display.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/pasteboard/SelectionOwner.h"

#include <QThread>

#include <memory>

class SelectionTest : public QuillbayTest {
protected:
    SelectionTest() { TestDisplay::start(); }

    using Outcome = Result<Pasteboard, SelectionFailure>;

    /// Meanwhile the event loop of the test runs, as its own process may be who has selected something.
    static Outcome read(SelectionName name = SelectionName::Primary,
        SelectionContent content = SelectionContent::Text, quint64 largest = 1 << 30)
    {
        std::optional<Outcome> outcome;
        const std::unique_ptr<QThread> reader(
            QThread::create([&] { outcome.emplace(readSelection(name, content, largest)); }));
        reader->start();
        EXPECT_TRUE(waitUntil([&] { return reader->isFinished(); }));
        return *outcome;
    }

    static Pasteboard::Forms formsOf(const Outcome &outcome)
    {
        return outcome ? outcome.value().forms() : Pasteboard::Forms{};
    }

    static QString textOf(const Outcome &outcome)
    {
        return outcome ? readAttributedString(outcome.value()).value_or(AttributedString()).string()
                       : QString();
    }

    static std::optional<SelectionFailure::Cause> failureOf(const Outcome &outcome)
    {
        return outcome ? std::nullopt : std::optional(outcome.error().cause);
    }

    /// That many bytes, without repeated parts.
    static QByteArray manyLines(qsizetype size)
    {
        QByteArray lines;
        for (int i = 0; lines.size() < size; ++i)
            lines += "line " + QByteArray::number(i) + '\n';
        lines.truncate(size);
        return lines;
    }
};
