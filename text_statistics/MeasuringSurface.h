// SPDX-License-Identifier: MIT
// MeasuringSurface is the off-screen page on which texts are laid out to count their lines: the page preview
// in a window that is never shown.
// Thread: main.  Owner: shared() for the process, or a test.
#pragma once

#include "platform/views/Window.h"
#include "text_statistics/CountingRules.h"
#include "text_statistics/PageSizeForMeasuringPreviewViewController.h"

#include <memory>

class PrintSettings;

class MeasuringSurface {
public:
    /// Created at the first call; stays until the process exits, with the fonts that it has loaded.
    static MeasuringSurface &shared();

    /// engine: not null.
    explicit MeasuringSurface(std::shared_ptr<LayoutEngine> engine);
    MeasuringSurface(const MeasuringSurface &) = delete;
    MeasuringSurface &operator=(const MeasuringSurface &) = delete;
    ~MeasuringSurface();

    /// The paper that the preferences name, and the preferred margins converted from inches to points of this
    /// surface: inches x 72 / its window's backing scale factor. The paper is deliberately not scaled.
    /// Without such a paper: the paper size and margins of the print settings, with a line in the log.
    [[nodiscard]] PageRules pageOf(PrintSettings &printSettings) const;

    /// The number of line fragments of the text in the column between the page's margins. Every line end ends
    /// a line; the empty line after a final line end does not count. Margins that leave no width keep the
    /// column of page.columnBefore, or else of the previous call; with neither, the column has no width and
    /// every grapheme takes a line. The text stays in the text view until the next call.
    quint64 numberOfLines(
        const AttributedString &text, const PageRules &page, const LayoutEngine::Progress &progress = {});

    /// The width of the column on this page, in points, as numberOfLines() uses it; it is then that of the
    /// previous call for the next one.
    double columnWidthOn(const PageRules &page);

    [[nodiscard]] Window &window() { return m_window; }
    [[nodiscard]] PageSizeForMeasuringPreviewViewController &preview() { return m_preview; }
    [[nodiscard]] LayoutEngine &engine() { return *m_engine; }
    /// For other code of the thread that lays text out, as a second engine would list the fonts again.
    [[nodiscard]] const std::shared_ptr<LayoutEngine> &sharedEngine() const { return m_engine; }

private:
    void setPage(const PageRules &page);

    std::shared_ptr<LayoutEngine> m_engine;
    PageSizeForMeasuringPreviewViewController m_preview;
    Window m_window;
};
