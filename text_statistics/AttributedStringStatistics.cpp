// SPDX-License-Identifier: MIT
#include "text_statistics/AttributedStringStatistics.h"

#include "text_statistics/MeasuringSurface.h"

quint64 QBYExtension::numberOfLines(const AttributedString &text)
{
    return MeasuringSurface::shared().numberOfLines(text, currentPageRules());
}
