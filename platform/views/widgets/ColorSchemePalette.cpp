// SPDX-License-Identifier: MIT
#include "platform/views/widgets/ColorSchemePalette.h"

#include <QApplication>
#include <QPalette>

namespace {

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

struct SchemeColors {
    QRgb window;
    QRgb base;
    QRgb button;
    QRgb text;
    QRgb disabledText;
    QRgb mid;
    QRgb link;
};

constexpr SchemeColors darkColors{
    0xff2b2b2e, 0xff1f1f22, 0xff3a3a3e, 0xffeaeaec, 0xff85858a, 0xff4e4e54, 0xff7ab4f5};
constexpr SchemeColors lightColors{
    0xfff2f2f3, 0xffffffff, 0xffe8e8ea, 0xff1c1c1e, 0xff8e8e93, 0xffc4c4c8, 0xff0b5cc4};
constexpr QRgb highlight = 0xff2f6fd0;

QPalette paletteOf(const SchemeColors &colors)
{
    QPalette palette(QColor(colors.button), QColor(colors.window));
    for (const QPalette::ColorRole role :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, QColor(colors.text));
        palette.setColor(QPalette::Disabled, role, QColor(colors.disabledText));
    }
    palette.setColor(QPalette::PlaceholderText, QColor(colors.disabledText));
    palette.setColor(QPalette::Base, QColor(colors.base));
    palette.setColor(QPalette::AlternateBase, QColor(colors.window));
    palette.setColor(QPalette::ToolTipBase, QColor(colors.base));
    palette.setColor(QPalette::Mid, QColor(colors.mid));
    palette.setColor(QPalette::Link, QColor(colors.link));
    palette.setColor(QPalette::Highlight, QColor(highlight));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

} // namespace

void applyColorScheme(ColorScheme scheme)
{
    QApplication::setPalette(QPalette()); // that of the desktop
    if (scheme == ColorScheme::NoPreference)
        return;
    const bool wantsDark = scheme == ColorScheme::Dark;
    if (isDark(QApplication::palette()) != wantsDark)
        QApplication::setPalette(paletteOf(wantsDark ? darkColors : lightColors));
}
