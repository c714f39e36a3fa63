// SPDX-License-Identifier: MIT
#include "platform/views/Label.h"

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

void Label::sizeToFit()
{
    if (m_measurer)
        setFrameSize(m_measurer->labelSize(m_stringValue));
}
