// SPDX-License-Identifier: MIT
// StatusItem is a picture in the desktop's bar of status items that the user can press; StatusBar is that
// bar. Thread: main.  Owner: of an item, whoever shows something there; of the bar, main().
#pragma once

#include "platform/views/Geometry.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

class StatusItem : public QObject {
    Q_OBJECT

public:
    /// A picture of the program's resources, drawn in one colour; empty for none.
    [[nodiscard]] const QString &imageName() const { return m_imageName; }
    void setImageName(const QString &name)
    {
        if (name == m_imageName)
            return;
        m_imageName = name;
        Q_EMIT faceDidChange();
    }
    /// What a screen reader says, and what is shown when the pointer rests there.
    [[nodiscard]] const QString &toolTip() const { return m_toolTip; }
    void setToolTip(const QString &text)
    {
        if (text == m_toolTip)
            return;
        m_toolTip = text;
        Q_EMIT faceDidChange();
    }

    /// On the screen; absent where the desktop does not say.
    [[nodiscard]] const std::optional<QRectF> &buttonFrame() const { return m_buttonFrame; }
    void setButtonFrame(const std::optional<QRectF> &frame) { m_buttonFrame = frame; }

    /// As if the user had pressed it.
    void performClick() { Q_EMIT clicked(); }

Q_SIGNALS:
    void clicked();
    void faceDidChange();

private:
    QString m_imageName;
    QString m_toolTip;
    std::optional<QRectF> m_buttonFrame;
};

/// Keeps an item in the bar as long as it lives.
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

    /// item: not null, shared with what is returned. On a desktop without such a bar it is simply not there.
    /// What is returned may be let go at any time, also while the item tells of a click.
    [[nodiscard]] virtual std::unique_ptr<StatusItemInBar> addItem(std::shared_ptr<StatusItem> item) = 0;
};
