// SPDX-License-Identifier: MIT
// CountingPanel is a WordCounterViewController with a view and eight labels, on no screen, for tests.
// Thread: main.  Owner: the test.
#pragma once

#include "presentation/WordCounterViewController.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/presentation/StatsPanel.h"

#include <QStringList>

#include <memory>

/// The texts of a panel that nothing was counted for.
inline const QStringList untouched(8, QString());

/// In the short style, as the hosts of panels set it. All eight labels are visible unless the test prefers
/// otherwise before it makes the panel.
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

    /// What the eight labels show.
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

/// What the labels show for these counts.
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
