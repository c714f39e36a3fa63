// SPDX-License-Identifier: MIT
// MeasuringSurface is the page off screen on which texts are set to count their lines: the page preview in a
// window that nobody sees. Which text is counted when, and what for, is left to others. Thread: main.  Owner:
// shared() for the process, or a test.
#pragma once

#include "platform/views/Window.h"
#include "text_statistics/CountingRules.h"
#include "text_statistics/PageSizeForMeasuringPreviewViewController.h"

#include <memory>

class PrintSettings;

class MeasuringSurface {
public:
    /// Made at the first call and kept for the life of the process, with the fonts that it has loaded.
    static MeasuringSurface &shared();

    /// engine: not null.
    explicit MeasuringSurface(std::shared_ptr<LayoutEngine> engine);
    MeasuringSurface(const MeasuringSurface &) = delete;
    MeasuringSurface &operator=(const MeasuringSurface &) = delete;
    ~MeasuringSurface();

    /// The paper that the preferences name and their margins, turned from inches into points of this surface:
    /// inches x 72 / its window's backing scale factor, while the paper is not scaled. Without such a paper,
    /// the paper size and the margins of the print settings themselves, with a line in the log.
    [[nodiscard]] PageRules pageOf(PrintSettings &printSettings) const;

    /// The line fragments of the text in the column between the page's margins. A line end makes a line of
    /// its own; the empty line behind a final one does not count. Margins that leave no width leave the
    /// column of the call before in force, which is none at first: then every grapheme has a line. Where the
    /// page names the column before, that is the one. The text stays in the text view until the next call.
    quint64 numberOfLines(
        const AttributedString &text, const PageRules &page, const LayoutEngine::Progress &progress = {});

    [[nodiscard]] Window &window() { return m_window; }
    [[nodiscard]] PageSizeForMeasuringPreviewViewController &preview() { return m_preview; }
    [[nodiscard]] LayoutEngine &engine() { return *m_engine; }

private:
    void setPage(const PageRules &page);

    std::shared_ptr<LayoutEngine> m_engine;
    PageSizeForMeasuringPreviewViewController m_preview;
    Window m_window;
};
