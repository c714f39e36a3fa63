// SPDX-License-Identifier: MIT
// QBYPaper is one paper of the current printer, for the preferences and the line count. It converts lengths
// at the page scale of the print settings, which also list the papers.
// Thread: main; a value.
#pragma once

#include "platform/printing/Paper.h"

/// The margins are those that the printer cannot print on.
class QBYPaper {
public:
    explicit QBYPaper(Paper pmPaper);

    /// Looks in the shared print settings, with their extension of the same name.
    static std::optional<QBYPaper> paperObjectForPaperName(const QString &paperName);

    [[nodiscard]] bool isCustom() const { return m_pmPaper.isCustom; }
    /// A copy, which stays valid when the printer's list is read again.
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

    // Inches, at the page scale of the print settings.
    [[nodiscard]] double leftMarginInInches() const { return screenNumberToInch(leftMarginInScreen()); }
    [[nodiscard]] double rightMarginInInches() const { return screenNumberToInch(rightMarginInScreen()); }

    /// The page scale of the shared print settings: 1.0 for 100 per cent, and if the printing system has
    /// none.
    [[nodiscard]] double getScreenScaleFactor() const;

    // Inverse functions.
    [[nodiscard]] double screenNumberToInch(double points) const;
    [[nodiscard]] double inchToScreenNumber(double inches) const;

private:
    Paper m_pmPaper;
};
