// SPDX-License-Identifier: MIT
// Label is a view that shows one line of text, which the mouse cannot select.
// Thread: main.  Owner: its superview or window.
#pragma once

#include "platform/views/TextMeasurer.h"
#include "platform/views/View.h"

#include <QString>

enum class LabelAlignment { Left, Center, Right };

class Label : public View {
    Q_OBJECT

public:
    using View::View;

    [[nodiscard]] const QString &stringValue() const { return m_stringValue; }
    void setStringValue(const QString &stringValue);

    [[nodiscard]] LabelAlignment alignment() const { return m_alignment; }
    void setAlignment(LabelAlignment alignment);

    /// Null for none, as in a label on no screen: it then keeps its size.
    void setTextMeasurer(std::shared_ptr<const TextMeasurer> measurer) { m_measurer = std::move(measurer); }

    /// Takes the size that the text needs; the origin stays.
    void sizeToFit();

Q_SIGNALS:
    void stringValueDidChange();
    void alignmentDidChange();

private:
    QString m_stringValue;
    LabelAlignment m_alignment = LabelAlignment::Left;
    std::shared_ptr<const TextMeasurer> m_measurer;
};
