// SPDX-License-Identifier: MIT
#include "documents/ReadingTime.h"

namespace {

using namespace std::chrono_literals;

constexpr qsizetype mebibyte = 1'048'576;

struct TimeBudget {
    std::chrono::milliseconds base;
    std::chrono::milliseconds perMebibyte;
};

TimeBudget timeBudgetOf(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::PlainText:
    case DocumentKind::Rtf:
    case DocumentKind::Rtfd:
    case DocumentKind::Html:
    case DocumentKind::Markdown:
    case DocumentKind::Latex:
        return {5s, 500ms};
    case DocumentKind::Pdf:
        return {60s, 10s}; // Qt Pdf may take seconds for a page
    default:
        return {5s, 2s}; // packages are compressed
    }
}

} // namespace

std::chrono::seconds maxReadingTime(DocumentKind kind, qsizetype length)
{
    const TimeBudget time = timeBudgetOf(kind);
    return std::chrono::ceil<std::chrono::seconds>(time.base + time.perMebibyte * (length / mebibyte));
}
