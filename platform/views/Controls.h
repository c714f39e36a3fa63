// SPDX-License-Identifier: MIT
// The controls that a view can be: Label, Button, Box and ProgressIndicator. They hold what a control shows
// and report changes by signals; how it looks on a screen is up to platform/views/widgets.
// Thread: main.  Owner: their superview or window.
#pragma once

#include "platform/views/Painter.h"
#include "platform/views/View.h"

#include <QString>

#include <memory>
#include <optional>

enum class LabelAlignment { Left, Center, Right };

/// Measures texts of controls in the fonts that the user has chosen for them.
class TextMeasurer {
public:
    virtual ~TextMeasurer() = default;

    /// The size, in points, of a label that shows the whole text.
    [[nodiscard]] virtual QSizeF labelSize(const QString &text) const = 0;
    /// The size, in points, that a button with that title needs.
    [[nodiscard]] virtual QSizeF buttonSize(const QString &title) const = 0;

protected:
    TextMeasurer() = default;
    TextMeasurer(const TextMeasurer &) = default;
    TextMeasurer &operator=(const TextMeasurer &) = default;
};

/// One line of text, which the mouse cannot select.
class Label : public View {
    Q_OBJECT

public:
    using View::View;

    [[nodiscard]] const QString &stringValue() const { return m_stringValue; }
    void setStringValue(const QString &stringValue);

    [[nodiscard]] LabelAlignment alignment() const { return m_alignment; }
    void setAlignment(LabelAlignment alignment);

    /// Null for a label on no screen.
    void setTextMeasurer(std::shared_ptr<const TextMeasurer> measurer) { m_measurer = std::move(measurer); }

    /// The size that a text needs in this label; its present one without a measurer.
    [[nodiscard]] QSizeF fittingSize() const;
    /// Takes the size that the text needs; the origin stays. Without a measurer the size stays, too.
    void sizeToFit();

Q_SIGNALS:
    void stringValueDidChange();
    void alignmentDidChange();

private:
    QString m_stringValue;
    LabelAlignment m_alignment = LabelAlignment::Left;
    std::shared_ptr<const TextMeasurer> m_measurer;
};

/// A push button with a title, or with an icon and an accessible name.
class Button : public View {
    Q_OBJECT

public:
    using View::View;

    [[nodiscard]] const QString &title() const { return m_title; }
    void setTitle(const QString &title);

    /// A standard icon name of freedesktop.org such as "edit-copy", or Quillbay's own "quillbay-close". Empty
    /// for no icon.
    [[nodiscard]] const QString &iconName() const { return m_iconName; }
    void setIconName(const QString &name);

    [[nodiscard]] bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);

    /// Null for a button on no screen.
    void setTextMeasurer(std::shared_ptr<const TextMeasurer> measurer) { m_measurer = std::move(measurer); }
    /// The size that the title needs; the present one without a measurer.
    [[nodiscard]] QSizeF fittingSize() const;

    /// Acts like a press by the user: a disabled button does nothing.
    void performClick();

Q_SIGNALS:
    void clicked();
    void faceDidChange(); ///< the title or the icon
    void enabledDidChange();

private:
    QString m_title;
    QString m_iconName;
    bool m_enabled = true;
    std::shared_ptr<const TextMeasurer> m_measurer;
};

/// A plain area of one colour, or a separator: a thin line along the longer side, in the colour that the
/// user's theme gives such lines.
class Box : public View {
    Q_OBJECT

public:
    enum class Kind { Plain, Separator };

    explicit Box(Kind kind = Kind::Plain, const QRectF &frame = {})
        : View(frame)
        , m_kind(kind)
    {
    }

    [[nodiscard]] Kind kind() const { return m_kind; }
    void setKind(Kind kind);

    /// Of a plain box; absent: nothing is painted.
    [[nodiscard]] const std::optional<Color> &backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const std::optional<Color> &color);

    void drawRect(const QRectF &dirtyRect, Painter &painter) override;

private:
    Kind m_kind;
    std::optional<Color> m_backgroundColor;
};

/// A spinner, which is visible only while it turns.
class ProgressIndicator : public View {
    Q_OBJECT

public:
    using View::View;

    [[nodiscard]] bool isAnimating() const { return m_animating; }
    void setAnimating(bool animating);
    void startAnimation() { setAnimating(true); }
    void stopAnimation() { setAnimating(false); }

Q_SIGNALS:
    void animatingDidChange();

private:
    bool m_animating = false;
};
