// SPDX-License-Identifier: MIT
#include "desk/why/WhyTextView.h"

#include "platform/segmentation/GraphemeClusters.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr std::size_t maxVisibleMarks = 5000;

/// Different shapes below the text as well as colours, for those who cannot tell the colours apart.
QTextCharFormat formatOf(bool isCounted, bool isOdd, bool isDark)
{
    QTextCharFormat format;
    if (isCounted) {
        const QColor tint = isDark ? (isOdd ? 0x1d4257 : 0x1f4d2b) : (isOdd ? 0xcfe6f7 : 0xd5edd8);
        format.setBackground(tint);
        format.setUnderlineStyle(isOdd ? QTextCharFormat::DotLine : QTextCharFormat::SingleUnderline);
        format.setUnderlineColor(isDark ? QColor(0x9fd8b0) : QColor(0x1d6b34));
    } else {
        format.setBackground(isDark ? QColor(0x5c2f12) : QColor(0xfddfc6));
        format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        format.setUnderlineColor(isDark ? QColor(0xffb27a) : QColor(0xb3400a));
    }
    return format;
}

} // namespace

WhyTextView::WhyTextView(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    // The page takes what is dropped.
    setAcceptDrops(false);
    viewport()->setAcceptDrops(false);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &WhyTextView::markVisibleItems);
}

void WhyTextView::showText(ShownText text)
{
    m_items = std::make_shared<const FoundItems>();
    m_text = std::move(text);
    setExtraSelections({});
    setPlainText(m_text.string());
}

void WhyTextView::showItems(std::shared_ptr<const FoundItems> items, const TextRules &rules)
{
    m_items = std::move(items);
    m_rules = rules;
    markVisibleItems();
}

void WhyTextView::select(std::size_t index)
{
    const QTextCursor item = cursorOf(m_items->at(index));
    QTextCursor cursor = item;
    // The start of a long item is to be visible.
    cursor.setPosition(item.selectionEnd());
    cursor.setPosition(item.selectionStart(), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    markVisibleItems();
}

qsizetype WhyTextView::position() const
{
    return m_text.fromShown(textCursor().selectionStart());
}

QString WhyTextView::sentenceOn(std::size_t index) const
{
    constexpr qsizetype maxLength = 60; // of the item's text
    const CountedItem item = m_items->at(index);
    QString text = cursorOf(item).selectedText().simplified();
    if (text.size() > maxLength)
        text = firstUnits(text, maxLength).toString() + u'…';
    const QString reason = explanationOf(item.reason, m_rules);
    return item.isCounted() ? tr("“%1” is counted: %2.").arg(text, reason)
                            : tr("“%1” is not counted: %2.").arg(text, reason);
}

void WhyTextView::markVisibleItems()
{
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    const QTextBlock last = cursorForPosition(viewport()->rect().bottomRight()).block();
    const qsizetype end = m_text.fromShown(last.position() + last.length());
    QList<QTextEdit::ExtraSelection> marks;
    const std::size_t first = m_items->firstFrom(m_text.fromShown(firstVisibleBlock().position()));
    for (std::size_t i = first; i < m_items->size() && i - first < maxVisibleMarks; ++i) {
        const CountedItem item = m_items->at(i);
        if (item.start > end)
            break;
        marks.append({cursorOf(item), formatOf(item.isCounted(), i % 2 == 1, isDark)});
    }
    setExtraSelections(marks);
}

QTextCursor WhyTextView::cursorOf(const CountedItem &item) const
{
    QTextCursor cursor(document());
    cursor.setPosition(static_cast<int>(m_text.toShown(item.start)));
    const qsizetype end = std::min(item.end(), m_text.length());
    cursor.setPosition(static_cast<int>(m_text.toShown(end)), QTextCursor::KeepAnchor);
    return cursor;
}

std::optional<std::size_t> WhyTextView::itemUnder(QPoint place) const
{
    const QTextCursor cursor = cursorForPosition(place);
    // The cursor is between two characters; the one under the pointer may be that before it.
    int position = cursor.position();
    if (cursorRect(cursor).center().x() > place.x() && !cursor.atBlockStart())
        --position;
    return m_items->itemAt(m_text.fromShown(position));
}

bool WhyTextView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QPlainTextEdit::viewportEvent(event);
    const auto &help = static_cast<QHelpEvent &>(*event);
    const std::optional<std::size_t> index = itemUnder(help.pos());
    QToolTip::showText(help.globalPos(), index ? sentenceOn(*index) : QString(), viewport());
    return true;
}

void WhyTextView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Paste))
        Q_EMIT pasteRequested();
    else
        QPlainTextEdit::keyPressEvent(event);
}

void WhyTextView::mouseReleaseEvent(QMouseEvent *event)
{
    QPlainTextEdit::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || textCursor().hasSelection())
        return;
    if (const std::optional<std::size_t> index = itemUnder(event->position().toPoint()))
        Q_EMIT clicked(*index);
}

void WhyTextView::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    markVisibleItems();
}

void WhyTextView::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        markVisibleItems();
}
