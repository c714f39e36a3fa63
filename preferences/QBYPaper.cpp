// SPDX-License-Identifier: MIT
#include "preferences/QBYPaper.h"

#include "platform/printing/PrintSettings.h"
#include "preferences/PrintSettingsExtension.h"

#include <utility>

QBYPaper::QBYPaper(Paper pmPaper)
    : m_pmPaper(std::move(pmPaper))
{
}

std::optional<QBYPaper> QBYPaper::paperObjectForPaperName(const QString &paperName)
{
    return QBYExtension::paperObjectForPaperName(PrintSettings::shared(), paperName);
}

double QBYPaper::getScreenScaleFactor() const
{
    const std::optional<double> perCent = PrintSettings::shared().printer().pageScale;
    return perCent ? *perCent / 100 : 1;
}

double QBYPaper::screenNumberToInch(double points) const
{
    return getScreenScaleFactor() * points / pointsPerInch;
}

double QBYPaper::inchToScreenNumber(double inches) const
{
    return inches * pointsPerInch / getScreenScaleFactor();
}
