// SPDX-License-Identifier: MIT
// TextMeasurer tells how much room a line of text takes in the font of a label; what shows labels on a screen
// has one. Thread: main.  Owner: shared by the labels that ask it.
#pragma once

#include <QSizeF>
#include <QString>

class TextMeasurer {
public:
    virtual ~TextMeasurer() = default;

    /// The size, in points, of a label that shows the text whole.
    [[nodiscard]] virtual QSizeF labelSize(const QString &text) const = 0;

protected:
    TextMeasurer() = default;
    TextMeasurer(const TextMeasurer &) = default;
    TextMeasurer &operator=(const TextMeasurer &) = default;
};
