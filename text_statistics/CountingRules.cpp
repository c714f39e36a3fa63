// SPDX-License-Identifier: MIT
#include "text_statistics/CountingRules.h"

#include "platform/locale/CurrentLocale.h"
#include "platform/printing/PrintSettings.h"
#include "platform/segmentation/Segmenter.h"
#include "preferences/QBYUserDefaultsController.h"
#include "text_statistics/MeasuringSurface.h"
#include "text_statistics/PageSizeForMeasuringPreviewViewController.h"

void TextRules::fixLocale()
{
    localeIdentifier = [identifier = localeIdentifier()] { return identifier; };
}

bool TextRules::areLoneUnitsCounted() const
{
    return localeIdentifier() != QStringLiteral("en_US");
}

bool TextRules::isWordCounted(QStringView word) const
{
    // In American English a single letter or digit is not a word, except a, I, O and x.
    return word.size() != 1 || isEnglishWordOfOneLetter(word.utf16()[0]) || areLoneUnitsCounted();
}

bool TextRules::areEnoughSentences(quint64 sentencesOfParagraph) const
{
    return static_cast<qint64>(sentencesOfParagraph) >= minimumSentencesOfParagraph;
}

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
