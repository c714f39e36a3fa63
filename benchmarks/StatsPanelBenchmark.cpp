// SPDX-License-Identifier: MIT
// The time in which the statistics panel places its eight labels, in views without a screen.
#include "presentation/BaseWordCounterViewController.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

void placeLabels(benchmark::State &state, WordCounterLabelPositionPolicy policy)
{
    BaseWordCounterViewController panel;
    panel.view();
    panel.setLabelPositionPolicy(policy);
    for (const std::shared_ptr<Label> &label : panel.allTextfieldsForLayout())
        label->setHidden(false);
    panel.setVisibleTextfieldsForLayout(panel.allTextfieldsForLayout());
    double x = 0;
    for (auto _ : state) {
        x = 1 - x;
        for (const std::shared_ptr<Label> &label : panel.allTextfieldsForLayout())
            label->setFrameOrigin({x, x});
        panel.repositionLabels();
    }
}

} // namespace

BENCHMARK_CAPTURE(placeLabels, Slots, WordCounterLabelPositionPolicySlots);
BENCHMARK_CAPTURE(placeLabels, Stacked, WordCounterLabelPositionPolicyStacked);

int main(int argumentCount, char **arguments)
{
    const QTemporaryDir home; // keeps the user's preferences out
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    const QCoreApplication application(argumentCount, arguments);
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
