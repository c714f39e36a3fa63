// SPDX-License-Identifier: MIT
#include "text_statistics/CountingRules.h"

#include "platform/locale/CurrentLocale.h"
#include "platform/printing/PrintSettings.h"
#include "preferences/QBYUserDefaultsController.h"
#include "text_statistics/MeasuringSurface.h"
#include "text_statistics/PageSizeForMeasuringPreviewViewController.h"

std::optional<double> columnWidthOf(const PageRules &page)
{
    return PageSizeForMeasuringPreviewViewController::columnWidth(
        page.paperSize, page.leftMargin, page.rightMargin);
}

TextRules currentTextRules()
{
    return {
        .localeIdentifier = currentLocaleIdentifier,
        .minimumSentencesOfParagraph = QBYUserDefaultsController::minNumberOfSentencesForParagraphCount(),
        .sentencesNeedTerminalPunctuation =
            QBYUserDefaultsController::shouldEnforceTrailingPeriodForSentencesCount(),
    };
}

PageRules currentPageRules()
{
    return MeasuringSurface::shared().pageOf(PrintSettings::shared());
}

CountingRules currentCountingRules()
{
    return {.text = currentTextRules(), .page = currentPageRules()};
}
