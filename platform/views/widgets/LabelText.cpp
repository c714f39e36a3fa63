// SPDX-License-Identifier: MIT
#include "platform/views/widgets/LabelText.h"

#include <QApplication>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTextDocument>
#include <QWidget>

#include <algorithm>
#include <cmath>

LabelTextMeasurer::LabelTextMeasurer(const QWidget &window)
    : m_font(QApplication::font("QLabel"))
    , m_metrics(m_font, &window)
    , m_scale(window.devicePixelRatioF())
{
}

QSizeF LabelTextMeasurer::labelSize(const QString &text) const
{
    // A character from a fallback font may be taller than this font.
    const QSizeF needed = m_metrics.size(Qt::TextSingleLine, text);
    return {std::ceil(needed.width()), std::ceil(std::max(needed.height(), m_metrics.height()))};
}

QSizeF LabelTextMeasurer::buttonSize(const QString &title) const
{
    QStyleOptionButton option;
    option.text = title;
    const QFontMetrics metrics(QApplication::font("QPushButton"));
    option.fontMetrics = metrics;
    return QApplication::style()->sizeFromContents(
        QStyle::CT_PushButton, &option, metrics.size(Qt::TextShowMnemonic, title));
}

bool LabelTextMeasurer::measuresLike(const LabelTextMeasurer &other) const
{
    return m_font == other.m_font && m_metrics == other.m_metrics && m_scale == other.m_scale;
}

QString plainToolTip(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    QString plain;
    for (const QChar character : text) {
        plain += character;
        if (character == u'<' || character == u'&')
            plain += QChar(0x2060);
    }
    return plain;
}

QString plainWindowTitle(const QString &title)
{
    const QString placeholder = QStringLiteral("[*]");
    return QString(title).replace(placeholder, placeholder + placeholder);
}
