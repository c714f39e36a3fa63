// SPDX-License-Identifier: MIT
// QBYPaper is one paper of the current printer, as the preferences and the line count see it. It converts
// lengths at the scale of the print settings; which papers there are is theirs to say.
// Thread: main; a value.
#pragma once

#include "platform/printing/Paper.h"

/// The margins are those that the printer cannot print on.
class QBYPaper {
public:
    explicit QBYPaper(Paper pmPaper);

    /// Of the shared print settings' papers, as their extension of the same name finds it.
    static std::optional<QBYPaper> paperObjectForPaperName(const QString &paperName);

    [[nodiscard]] bool isCustom() const { return m_pmPaper.isCustom; }
    /// A copy, so that it stays valid when the printer's list is read anew.
    [[nodiscard]] const Paper &pmPaper() const { return m_pmPaper; }
    /// In the form of printer descriptions, such as "Letter"; absent if the printing system has none.
    [[nodiscard]] const std::optional<QString> &paperName() const { return m_pmPaper.ppdName; }
    /// The printing system's identifier; absent if it has none.
    [[nodiscard]] const std::optional<QString> &paperID() const { return m_pmPaper.identifier; }

    /// Points, not scaled.
    [[nodiscard]] QSizeF paperSize() const { return m_pmPaper.size; }

    // Points, not scaled.
    [[nodiscard]] double leftMarginInScreen() const { return m_pmPaper.margins.left; }
    [[nodiscard]] double rightMarginInScreen() const { return m_pmPaper.margins.right; }
    [[nodiscard]] double topMarginInScreen() const { return m_pmPaper.margins.top; }
    [[nodiscard]] double bottomMarginInScreen() const { return m_pmPaper.margins.bottom; }

    // Inches on a page of the print settings' scale.
    [[nodiscard]] double leftMarginInInches() const { return screenNumberToInch(leftMarginInScreen()); }
    [[nodiscard]] double rightMarginInInches() const { return screenNumberToInch(rightMarginInScreen()); }

    /// The scale at which the shared print settings print a page of this paper, 1.0 for 100 per cent; 1.0 too
    /// where the printing system does not say.
    [[nodiscard]] double getScreenScaleFactor() const;

    // Each other's inverse.
    [[nodiscard]] double screenNumberToInch(double points) const;
    [[nodiscard]] double inchToScreenNumber(double inches) const;

private:
    Paper m_pmPaper;
};
