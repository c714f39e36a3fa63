// SPDX-License-Identifier: MIT
// PageText compares the texts of pages with the expected ones.
// Thread: any.
#pragma once

#include "documents/html/HtmlReader.h"
#include "tests/harness/QuillbayTest.h"

struct PageCase {
    const char *page;
    const char16_t *text;
};

inline void expectTexts(std::initializer_list<PageCase> cases)
{
    for (const PageCase &pageAndText : cases) {
        const Result<AttributedString, DocumentError> read = readHtml(pageAndText.page, {.charset = "utf-8"});
        EXPECT_EQ(
            read ? read.value().string() : causeText(read.error()), QString::fromUtf16(pageAndText.text))
            << pageAndText.page;
    }
}
