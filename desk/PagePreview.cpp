// SPDX-License-Identifier: MIT
#include "desk/PagePreview.h"

#include "platform/styled_text/AttributedString.h"
#include "text_statistics/MeasuringSurface.h"

#include <QAccessibleWidget>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {

// More than fits on the largest sheets, and little enough to be laid out at once.
constexpr qsizetype maxTextLength = 200'000; // UTF-16 code units

constexpr int frameWidth = 1; // pixels around the page

/// Plain text is measured in 12-point Helvetica. A pixel of the page is a point.
QFont fontOfPlainText()
{
    QFont font;
    font.setFamilies({QStringLiteral("Helvetica"), QStringLiteral("Nimbus Sans"), QStringLiteral("Arial")});
    font.setPixelSize(12);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// Draws the text so that it fills the rectangle's width.
void drawStretched(QPainter &painter, const QRectF &rect, const QString &text)
{
    const QFontMetricsF metrics(painter.font());
    const double width = metrics.horizontalAdvance(text);
    if (width <= 0)
        return;
    painter.save();
    painter.translate(rect.left(), rect.top() + (rect.height() - metrics.height()) / 2 + metrics.ascent());
    painter.scale(rect.width() / width, 1);
    painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter.drawText(QPointF(0, 0), text);
    painter.restore();
}

/// Screen readers announce the preview as a picture.
QAccessibleInterface *makeAccessible(const QString & /*className*/, QObject *object)
{
    auto *const preview = qobject_cast<PagePreview *>(object);
    return preview ? new QAccessibleWidget(preview, QAccessible::Graphic) : nullptr;
}

QString withoutTrailingBlanks(const QString &text)
{
    qsizetype end = text.size();
    while (end > 0 && text[end - 1].isSpace())
        --end;
    return text.left(end).replace(u'\t', QStringLiteral("    "));
}

} // namespace

PagePreview::PagePreview(QWidget *parent)
    : QWidget(parent)
    , m_controller(MeasuringSurface::shared().sharedEngine())
    , m_sizeLabel(new QLabel(this))
{
    m_sizeLabel->setObjectName(QStringLiteral("sizeLabel"));
    m_sizeLabel->setAlignment(Qt::AlignCenter);
    m_controller.loadView();
    QAccessible::installFactory(&makeAccessible); // once: Qt knows its factories
}

void PagePreview::setPage(const PageRules &page)
{
    m_page = page;
    fitPage();
}

void PagePreview::setText(const QString &text)
{
    m_controller.previewTextView()->textStorage().setAttributedString(
        AttributedString(text.left(maxTextLength)));
    update();
}

void PagePreview::fitPage()
{
    m_controller.mainScrollView()->setFrameSize(
        QSizeF(size() - QSize(2 * frameWidth, 2 * frameWidth + m_sizeLabel->sizeHint().height()))
            .expandedTo({1, 1}));
    m_controller.setPreviewContentFrameSize(m_page.paperSize, m_page.leftMargin, m_page.rightMargin);
    setAccessibleDescription(sizeText());
    m_sizeLabel->setText(sizeText());
    placeSizeLabel();
    update();
}

void PagePreview::placeSizeLabel()
{
    const QRectF page(QPointF(0, 0), m_controller.wrapperView()->frame().size());
    const int height = m_sizeLabel->sizeHint().height();
    const auto bottom = static_cast<int>(transformToWidget().mapRect(page).bottom()) + frameWidth;
    m_sizeLabel->setGeometry(0, std::min(bottom, this->height() - height), width(), height);
}

void PagePreview::resizeEvent(QResizeEvent * /*event*/)
{
    fitPage();
}

void PagePreview::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitPage();
}

QTransform PagePreview::transformToWidget() const
{
    // As large as the page of the controller, in the middle of the widget with the size below it. Of a huge
    // sheet the top left part.
    const QSizeF page = m_controller.wrapperView()->frame().size();
    const double factor = m_controller.mainScrollView()->magnification();
    QTransform transform;
    transform.translate(std::max(0.0, (width() - page.width() * factor) / 2),
        std::max(0.0, (height() - m_sizeLabel->sizeHint().height() - page.height() * factor) / 2));
    transform.scale(factor, factor);
    return transform;
}

QList<PagePreview::Line> PagePreview::linesOfPage() const
{
    QList<Line> lines;
    TextView &textView = *m_controller.previewTextView();
    const QString &text = textView.textStorage().attributedString().string();
    LayoutManager &layout = textView.layoutManager();
    for (qsizetype glyph = 0; glyph < layout.numberOfGlyphs();) {
        const LayoutManager::LineFragmentRect line = layout.lineFragmentRectForGlyphAtIndex(glyph);
        const QRectF rect = line.usedRect.translated(textView.frame().topLeft());
        if (rect.bottom() > m_controller.wrapperView()->frame().height())
            break;
        lines.append(
            {rect, withoutTrailingBlanks(text.mid(line.effectiveRange.start, line.effectiveRange.length))});
        glyph = line.effectiveRange.end();
    }
    return lines;
}

QStringList PagePreview::visibleLines() const
{
    QStringList texts;
    for (const Line &line : linesOfPage())
        texts.append(line.text);
    return texts;
}

void PagePreview::paintEvent(QPaintEvent * /*event*/)
{
    const QRectF page(QPointF(0, 0), m_controller.wrapperView()->frame().size());
    if (page.isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setTransform(transformToWidget(), true);
    // Paper is white, and its text black, on a dark desktop too.
    painter.fillRect(page, Qt::white);
    painter.setPen(QPen(palette().color(QPalette::Mid), 0));
    painter.drawRect(page);
    painter.setClipRect(page);
    painter.setPen(Qt::black);
    painter.setFont(fontOfPlainText());
    for (const Line &line : linesOfPage())
        drawStretched(painter, line.rect, line.text);
}
