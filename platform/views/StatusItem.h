// SPDX-License-Identifier: MIT
// StatusItem is an icon in the desktop's tray that the user can press; StatusBar is the tray.
// Thread: main.  Owner: of an item, its watcher; of the tray, main().
#pragma once

#include "platform/views/Geometry.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

class StatusItem : public QObject {
    Q_OBJECT

public:
    /// The name of one of Quillbay's symbols; empty for none.
    [[nodiscard]] const QString &imageName() const { return m_imageName; }
    void setImageName(const QString &name)
    {
        if (name == m_imageName)
            return;
        m_imageName = name;
        Q_EMIT faceDidChange();
    }
    /// Also the name for screen readers.
    [[nodiscard]] const QString &toolTip() const { return m_toolTip; }
    void setToolTip(const QString &text)
    {
        if (text == m_toolTip)
            return;
        m_toolTip = text;
        Q_EMIT faceDidChange();
    }

    /// Where the icon is on the screen; absent where the desktop does not report it.
    [[nodiscard]] const std::optional<QRectF> &buttonFrame() const { return m_buttonFrame; }
    void setButtonFrame(const std::optional<QRectF> &frame) { m_buttonFrame = frame; }

    /// Acts like a press by the user.
    void performClick() { Q_EMIT clicked(); }

Q_SIGNALS:
    void clicked();
    void faceDidChange();

private:
    QString m_imageName;
    QString m_toolTip;
    std::optional<QRectF> m_buttonFrame;
};

/// Keeps an item in the tray as long as it lives.
class StatusItemInBar {
public:
    StatusItemInBar() = default;
    StatusItemInBar(const StatusItemInBar &) = delete;
    StatusItemInBar &operator=(const StatusItemInBar &) = delete;
    virtual ~StatusItemInBar() = default;
};

class StatusBar {
public:
    StatusBar() = default;
    StatusBar(const StatusBar &) = delete;
    StatusBar &operator=(const StatusBar &) = delete;
    virtual ~StatusBar() = default;

    /// item: not null, shared with the result. On a desktop without a tray it stays invisible. The result may
    /// be destroyed at any time, even while the item reports a click.
    [[nodiscard]] virtual std::unique_ptr<StatusItemInBar> addItem(std::shared_ptr<StatusItem> item) = 0;
};
