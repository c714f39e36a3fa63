// SPDX-License-Identifier: MIT
// PageText compares the texts of pages with the expected ones, and measures the time of reading.
// Thread: any.
#pragma once

#include "documents/html/HtmlReader.h"
#include "tests/harness/QuillbayTest.h"

#include <ctime>

/// Of this thread.
inline double processorSeconds()
{
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

/// The text of a page, or why it has none.
inline QString textOfBytes(const QByteArray &page)
{
    const Result<AttributedString, DocumentError> read = readHtml(page, {.charset = "utf-8"});
    return read ? read.value().string() : causeText(read.error());
}

struct PageCase {
    const char *page;
    const char16_t *text;
};

inline void expectTexts(std::initializer_list<PageCase> cases)
{
    for (const PageCase &pageAndText : cases) {
        EXPECT_EQ(textOfBytes(pageAndText.page), QString::fromUtf16(pageAndText.text)) << pageAndText.page;
    }
}
