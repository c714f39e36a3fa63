// SPDX-License-Identifier: MIT
// CountingPanel is a WordCounterViewController with a view and eight labels, on no screen, for tests.
// Thread: main.  Owner: the test.
#pragma once

#include "presentation/WordCounterViewController.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/presentation/StatsPanel.h"

#include <QStringList>

#include <memory>

/// The texts of the labels before the first count.
inline const QStringList untouched(8, QString());

/// Uses the short style, like the hosts of panels. All eight labels are visible unless the test changes the
/// preferences before it creates the panel.
class CountingPanel {
public:
    explicit CountingPanel(
        std::shared_ptr<WordCounterViewController> made = std::make_shared<WordCounterViewController>())
        : controller(std::move(made))
        , view(std::make_shared<View>(QRectF(0, 0, 200, 120)))
    {
        for (qint64 tag = 1; tag <= 8; ++tag) {
            auto label = std::make_shared<Label>(QRectF(10, 100 - 10 * static_cast<double>(tag), 80, 17));
            label->setTag(tag);
            view->addSubview(label);
            labels.push_back(std::move(label));
        }
        connectOutlets(*controller, labels);
        controller->setView(view);
        controller->setLayoutDelegate(&delegate);
        controller->wordCounter()->setFormattedStringStyle(1);
        controller->viewDidLoad();
        delegate.calls.clear();
    }

    /// The texts of the eight labels.
    [[nodiscard]] QStringList texts() const
    {
        QStringList texts;
        for (const std::shared_ptr<Label> &label : labels)
            texts.append(label->stringValue());
        return texts;
    }

    std::shared_ptr<WordCounterViewController> controller;
    std::shared_ptr<View> view;
    std::vector<std::shared_ptr<Label>> labels;
    RecordingLayoutDelegate delegate;
};

/// The texts of the labels for these counts.
inline QStringList textsFor(const std::vector<int> &counts)
{
    return {QStringLiteral("•Words: %1").arg(counts.at(0)),
        QStringLiteral("•Characters: %1").arg(counts.at(1)),
        QStringLiteral("•Chars (+Whitespace): %1").arg(counts.at(2)),
        QStringLiteral("•Sentences: %1").arg(counts.at(3)), QStringLiteral("•Lines: %1").arg(counts.at(4)),
        QStringLiteral("•Lines (Hard Break): %1").arg(counts.at(5)),
        QStringLiteral("•Paragraphs: %1").arg(counts.at(6)),
        QStringLiteral("•Indented Paragraphs: %1").arg(counts.at(7))};
}
