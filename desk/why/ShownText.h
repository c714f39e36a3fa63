// SPDX-License-Identifier: MIT
// ShownText is the form of a text in which a text view can show it: in lines that are not too long, without
// what the view takes for its own. It translates positions between the two.
// Thread: any; a value.
#pragma once

#include <QString>

#include <vector>

class ShownText {
public:
    /// UTF-16 code units; the view lays out a line at once.
    static constexpr qsizetype maxLineLength = 16'384;
    /// UTF-16 code units; of longer texts, the start is shown.
    static constexpr qsizetype maxLength = 20'000'000;

    ShownText() = default;
    explicit ShownText(const QString &text);

    /// The lines, separated by LF.
    [[nodiscard]] const QString &string() const { return m_string; }
    /// How much of the text is shown, in UTF-16 code units.
    [[nodiscard]] qsizetype length() const { return m_length; }

    // Between a position of the text (0 to length()) and one of string(), in UTF-16 code units. A position
    // within a line end is the end of the line.
    [[nodiscard]] qsizetype toShown(qsizetype position) const;
    [[nodiscard]] qsizetype fromShown(qsizetype position) const;

private:
    struct Line {
        qsizetype start; // in the text
        qsizetype shownStart;
        qsizetype length;
    };

    QString m_string;
    qsizetype m_length = 0;
    std::vector<Line> m_lines{{0, 0, 0}};
};
