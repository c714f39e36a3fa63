// SPDX-License-Identifier: MIT
#include "platform/views/Controls.h"

void Label::setStringValue(const QString &stringValue)
{
    if (m_stringValue == stringValue)
        return;
    m_stringValue = stringValue;
    Q_EMIT stringValueDidChange();
    setNeedsDisplay();
}

void Label::setAlignment(LabelAlignment alignment)
{
    if (m_alignment == alignment)
        return;
    m_alignment = alignment;
    Q_EMIT alignmentDidChange();
}

QSizeF Label::fittingSize() const
{
    return m_measurer ? m_measurer->labelSize(m_stringValue) : frame().size();
}

void Label::sizeToFit()
{
    setFrameSize(fittingSize());
}

void Button::setTitle(const QString &title)
{
    if (m_title == title)
        return;
    m_title = title;
    Q_EMIT faceDidChange();
}

void Button::setIconName(const QString &name)
{
    if (m_iconName == name)
        return;
    m_iconName = name;
    Q_EMIT faceDidChange();
}

void Button::setEnabled(bool enabled)
{
    if (m_enabled == enabled)
        return;
    m_enabled = enabled;
    Q_EMIT enabledDidChange();
}

QSizeF Button::fittingSize() const
{
    return m_measurer ? m_measurer->buttonSize(m_title) : frame().size();
}

void Button::performClick()
{
    if (m_enabled)
        Q_EMIT clicked();
}

void Box::setKind(Kind kind)
{
    if (m_kind == kind)
        return;
    m_kind = kind;
    setNeedsDisplay();
}

void Box::setBackgroundColor(const std::optional<Color> &color)
{
    if (m_backgroundColor == color)
        return;
    m_backgroundColor = color;
    setNeedsDisplay();
}

void Box::drawRect(const QRectF &dirtyRect, Painter &painter)
{
    View::drawRect(dirtyRect, painter);
    if (m_kind == Kind::Plain && m_backgroundColor)
        painter.fillRect(bounds(), *m_backgroundColor);
}

void ProgressIndicator::setAnimating(bool animating)
{
    if (m_animating == animating)
        return;
    m_animating = animating;
    Q_EMIT animatingDidChange();
}
