// SPDX-License-Identifier: MIT
#include "text_statistics/MeasuringSurface.h"

#include "common_views/ViewExtension.h"
#include "platform/logging/LogChannel.h"
#include "platform/printing/PrintSettings.h"
#include "platform/text_layout/LayoutEngine.h"
#include "preferences/FurtherPreferences.h"
#include "preferences/PrintSettingsExtension.h"
#include "preferences/QBYUserDefaultsController.h"

MeasuringSurface &MeasuringSurface::shared()
{
    static auto &surface = *new MeasuringSurface(std::make_shared<LayoutEngine>());
    return surface;
}

MeasuringSurface::MeasuringSurface(std::shared_ptr<LayoutEngine> engine)
    : m_engine(std::move(engine))
    , m_preview(m_engine)
{
    m_preview.loadView();
    m_window.setContentView(m_preview.view());
}

MeasuringSurface::~MeasuringSurface() = default;

PageRules MeasuringSurface::pageOf(PrintSettings &printSettings) const
{
    using Preferences = QBYUserDefaultsController;
    const std::optional<QBYPaper> paper = QBYExtension::currentPaperObject(printSettings);
    if (!paper) {
        LogChannel::standard().error(
            u"Error getting page from preferences. defaulting to NSPrintInfo values.");
        return {.paperName = std::nullopt,
            .paperSize = printSettings.paperSize(),
            .leftMargin = printSettings.leftMargin(),
            .rightMargin = printSettings.rightMargin(),
            .scale = m_window.backingScaleFactor()};
    }
    const View &textView = *m_preview.previewTextView();
    const auto pointsOf = [&textView](
                              double inches) { return QBYExtension::inchToScreenNumber(textView, inches); };
    return {.paperName = paper->paperName(),
        .paperSize = paper->paperSize(),
        .leftMargin = pointsOf(Preferences::leftMarginForPaperSizeLineMeasuring()),
        .rightMargin = pointsOf(Preferences::rightMarginForPaperSizeLineMeasuring()),
        .topMargin = pointsOf(FurtherPreferences::verticalMargin(Preference::TopMargin)),
        .bottomMargin = pointsOf(FurtherPreferences::verticalMargin(Preference::BottomMargin)),
        .scale = m_window.backingScaleFactor()};
}

void MeasuringSurface::setPage(const PageRules &page)
{
    const QRectF frame(QPointF(0, 0), page.paperSize);
    if (!isExactlyEqual(m_window.frame().size(), page.paperSize))
        m_window.setFrame(frame, true, false);
    m_preview.view()->setFrame(frame);
    if (page.columnBefore) {
        TextView &textView = *m_preview.previewTextView();
        textView.setFrameSize({*page.columnBefore, textView.frame().height()});
    }
    m_preview.setPreviewContentFrameSize(page.paperSize, page.leftMargin, page.rightMargin);
}

double MeasuringSurface::columnWidthOn(const PageRules &page)
{
    setPage(page);
    return m_preview.previewTextView()->textContainer().width();
}

quint64 MeasuringSurface::numberOfLines(
    const AttributedString &text, const PageRules &page, const LayoutEngine::Progress &progress)
{
    const double columnWidth = columnWidthOn(page);
    m_preview.previewTextView()->textStorage().setAttributedString(text);
    // Counted by the engine, as the layout manager would store every line.
    return m_engine->countLines(text, columnWidth, progress);
}
