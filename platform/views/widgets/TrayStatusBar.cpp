// SPDX-License-Identifier: MIT
#include "platform/views/widgets/TrayStatusBar.h"

#include "platform/views/widgets/LabelText.h"
#include "platform/views/widgets/PixelGeometry.h"
#include "platform/views/widgets/SymbolIcon.h"

#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QSystemTrayIcon>

namespace {

class TrayItem final : public StatusItemInBar {
public:
    explicit TrayItem(std::shared_ptr<StatusItem> item)
        : m_item(std::move(item))
        , m_icon(new QSystemTrayIcon)
    {
        StatusItem *const shown = m_item.get();
        QSystemTrayIcon *const icon = m_icon;
        const auto update = [shown, icon] {
            icon->setIcon(SymbolIcon::load(shown->imageName()));
            icon->setToolTip(plainToolTip(shown->toolTip()));
        };
        QObject::connect(shown, &StatusItem::faceDidChange, icon, update);
        QObject::connect(icon, &QSystemTrayIcon::activated, shown,
            [shown, icon](QSystemTrayIcon::ActivationReason reason) {
                if (reason != QSystemTrayIcon::Trigger)
                    return;
                shown->setButtonFrame(iconFrame(*icon));
                shown->performClick();
            });
        update();
        icon->show();
    }

    ~TrayItem() override
    {
        m_icon->hide();
        m_icon->deleteLater(); // its own click may be what is being handled
    }

private:
    /// Only the X11 tray reports where its icons are.
    static std::optional<QRectF> iconFrame(const QSystemTrayIcon &icon)
    {
        const QRect pixels = icon.geometry();
        if (pixels.isEmpty())
            return std::nullopt;
        return frameOnScreen(pixels, QGuiApplication::primaryScreen()->geometry(), QRectF());
    }

    std::shared_ptr<StatusItem> m_item;
    QSystemTrayIcon *m_icon; // deleted by the event loop, after this
};

} // namespace

std::unique_ptr<StatusItemInBar> TrayStatusBar::addItem(std::shared_ptr<StatusItem> item)
{
    return std::make_unique<TrayItem>(std::move(item));
}
