// SPDX-License-Identifier: MIT
#include "text_statistics/CountingRules.h"

#include "platform/locale/CurrentLocale.h"
#include "preferences/QBYUserDefaultsController.h"

CountingRules currentCountingRules()
{
    return {
        .localeIdentifier = currentLocaleIdentifier,
        .minimumSentencesOfParagraph = QBYUserDefaultsController::minNumberOfSentencesForParagraphCount(),
        .sentencesNeedTerminalPunctuation =
            QBYUserDefaultsController::shouldEnforceTrailingPeriodForSentencesCount(),
    };
}
