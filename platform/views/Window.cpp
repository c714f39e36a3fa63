// SPDX-License-Identifier: MIT
#include "platform/views/Window.h"

#include "platform/views/View.h"

#include <cmath>
#include <utility>

Window::Window(const QRectF &frame, unsigned styleMask)
    : m_frame(frame)
    , m_styleMask(styleMask)
{
}

Window::~Window()
{
    if (m_contentView)
        m_contentView->m_window = nullptr;
}

void Window::setFrame(const QRectF &frame, bool display, bool animate)
{
    if (!isExactlyEqual(frame, m_frame)) {
        m_frame = frame;
        Q_EMIT frameDidChange(display, animate);
        // A listener may have set another frame; the content follows the latest.
        if (m_contentView)
            m_contentView->setFrame({QPointF(), m_frame.size()});
    }
    if (display && m_contentView)
        m_contentView->setNeedsDisplay();
}

void Window::setContentView(std::shared_ptr<View> view)
{
    if (view == m_contentView)
        return;
    if (view)
        view->leaveSuperviewAndWindow();
    if (m_contentView)
        m_contentView->m_window = nullptr;
    m_contentView = std::move(view);
    if (m_contentView) {
        m_contentView->m_window = this;
        m_contentView->setFrame({QPointF(), m_frame.size()});
    }
    Q_EMIT contentViewDidChange();
}

void Window::setStyleMask(unsigned styleMask)
{
    if (styleMask == m_styleMask)
        return;
    m_styleMask = styleMask;
    Q_EMIT styleMaskDidChange();
}

void Window::setBackingScaleFactor(double factor)
{
    if (!(factor > 0) || std::isinf(factor) || factor == m_backingScaleFactor)
        return;
    m_backingScaleFactor = factor;
    Q_EMIT backingScaleFactorDidChange();
}

void Window::setTitle(const QString &title)
{
    if (title == m_title)
        return;
    m_title = title;
    Q_EMIT titleDidChange();
}

void Window::setLevel(WindowLevel level)
{
    if (level == m_level)
        return;
    m_level = level;
    Q_EMIT levelDidChange();
}

void Window::orderFront()
{
    m_visible = true;
    Q_EMIT orderedFront();
}

void Window::orderOut()
{
    if (!m_visible)
        return;
    m_visible = false;
    Q_EMIT orderedOut();
}

void Window::performClose()
{
    Q_EMIT closeRequested();
    if (m_closesOnRequest)
        close();
}

void Window::close()
{
    if (!m_visible)
        return;
    orderOut();
    Q_EMIT closed();
}

void Window::setCopyProvider(std::function<MimeContent()> provider)
{
    m_copyProvider = std::move(provider);
    Q_EMIT copyProviderDidChange();
}

QString Window::accessibleDescription() const
{
    if (!m_notice.isEmpty())
        return m_notice;
    return m_summaryProvider ? m_summaryProvider() : QString();
}
