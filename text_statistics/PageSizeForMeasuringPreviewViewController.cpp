// SPDX-License-Identifier: MIT
#include "text_statistics/PageSizeForMeasuringPreviewViewController.h"

#include "common_views/ViewExtension.h"
#include "text_statistics/TrimTrailingNumbersOffDecimal.h"

#include <QCoreApplication>
#include <QStringList>

#include <limits>

using QBYExtension::screenPointValueToInch;
using QBYExtension::scrollToTop;

namespace {

std::shared_ptr<QBYScrollView> makeScrollView()
{
    auto scrollView = std::make_shared<QBYScrollView>();
    scrollView->setDisableScrolling(true);
    scrollView->setMinMagnification(0.15);
    return scrollView;
}

std::shared_ptr<FlippedView> makePage()
{
    auto page = std::make_shared<FlippedView>();
    page->setBackgroundColor(Color::white());
    return page;
}

std::shared_ptr<TextView> makeTextView(const std::shared_ptr<LayoutEngine> &engine)
{
    constexpr double unlimited = std::numeric_limits<double>::max();
    auto textView = std::make_shared<TextView>(QRectF(0, 0, 0, unlimited), engine);
    textView->setAppearance(Appearance::Light); // the page is white on a dark desktop too
    textView->setEditable(false);
    textView->setSelectable(false);
    textView->textStorage().setAttributedString(AttributedString(pagePreviewSampleText()));
    return textView;
}

QString inches(double points)
{
    return TrimTrailingNumbersOffDecimal::trimTrailingNumbersOffFloatingPointNumber(
        screenPointValueToInch(points));
}

} // namespace

QString pagePreviewSampleText()
{
    const QString paragraph = QStringLiteral(
        "Lorem ipsum dolor sit amet, consectetur adipiscing elit, sed do eiusmod tempor incididunt ut "
        "labore et dolore magna aliqua. Ut enim ad minim veniam, quis nostrud exercitation ullamco "
        "laboris nisi ut aliquip ex ea commodo consequat. Duis aute irure dolor in reprehenderit in "
        "voluptate velit esse cillum dolore eu fugiat nulla pariatur. Excepteur sint occaecat cupidatat "
        "non proident, sunt in culpa qui officia deserunt mollit anim id est laborum.");
    return u'\n' + QStringList(4, paragraph).join(u'\n');
}

PageSizeForMeasuringPreviewViewController::PageSizeForMeasuringPreviewViewController(
    std::shared_ptr<LayoutEngine> engine)
    : m_engine(std::move(engine))
{
}

void PageSizeForMeasuringPreviewViewController::loadView()
{
    if (!m_mainScrollView) {
        const std::shared_ptr<QBYScrollView> scrollView = makeScrollView();
        m_mainScrollView = scrollView.get();
        setView(scrollView);
    }
    if (!m_wrapperView) {
        const std::shared_ptr<FlippedView> page = makePage();
        m_wrapperView = page.get();
        m_mainScrollView->setDocumentView(page);
    }
    if (!m_previewTextView)
        m_previewTextView = makeTextView(m_engine);
    m_wrapperView->addSubview(m_previewTextView);
    scrollToTop(*m_mainScrollView);
}

std::optional<double> PageSizeForMeasuringPreviewViewController::columnWidth(
    const QSizeF &size, double leftInset, double rightInset)
{
    if (!(leftInset + rightInset < size.width()))
        return std::nullopt;
    return size.width() - leftInset - rightInset;
}

void PageSizeForMeasuringPreviewViewController::setPreviewContentFrameSize(
    const QSizeF &size, double leftInset, double rightInset)
{
    const std::optional<double> width = columnWidth(size, leftInset, rightInset);
    if (!width)
        return;
    if (!m_mainScrollView || !m_wrapperView || !m_previewTextView)
        loadView();
    m_wrapperView->setFrameSize(size);
    m_previewTextView->setFrame({leftInset, 0, *width, m_previewTextView->frame().height()});
    m_mainScrollView->magnifyToFitRect(m_wrapperView->frame());
    scrollToTop(*m_mainScrollView);
}

QSizeF PageSizeForMeasuringPreviewViewController::pageSize() const
{
    return m_wrapperView ? m_wrapperView->frame().size() : QSizeF(0, 0);
}

double PageSizeForMeasuringPreviewViewController::embeddedTextViewOffsetMagnifiedWidth() const
{
    if (!m_mainScrollView)
        return 0;
    return m_mainScrollView->frame().width() - pageSize().width() * m_mainScrollView->magnification();
}

QString PageSizeForMeasuringPreviewViewController::formattedPageSizeInInches() const
{
    return QCoreApplication::translate("PageSizeForMeasuringPreviewViewController", "%1 x %2 inches")
        .arg(inches(pageSize().width()), inches(pageSize().height()));
}
