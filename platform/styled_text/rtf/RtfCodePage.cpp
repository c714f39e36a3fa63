// SPDX-License-Identifier: MIT
#include "platform/styled_text/rtf/RtfCodePage.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr qint32 pictureFontNumber = 42; // what Windows calls the page of symbol fonts
constexpr qint32 symbolFontNumber = -42; // of our own, which no document may name

/// Ascending by number. ICU has no converter for the Macintosh's pages of East Asia and the Near East but
/// those of Windows and ISO, which have the same letters.
constexpr RtfCodePage pages[] = {
    {symbolFontNumber, nullptr, RtfCodePage::Kind::SymbolFont},
    {pictureFontNumber, nullptr, RtfCodePage::Kind::PictureFont},
    {437, "ibm-437"},
    {708, "ibm-1089"},
    {720, "ibm-720"},
    {737, "ibm-737"},
    {775, "ibm-775"},
    {819, "ISO-8859-1"},
    {850, "ibm-850"},
    {852, "ibm-852"},
    {855, "ibm-855"},
    {857, "ibm-857"},
    {858, "ibm-858"},
    {860, "ibm-860"},
    {861, "ibm-861"},
    {862, "ibm-862"},
    {863, "ibm-863"},
    {864, "ibm-864"},
    {865, "ibm-865"},
    {866, "ibm-866"},
    {869, "ibm-869"},
    {874, "windows-874"},
    {932, "windows-932"},
    {936, "windows-936"},
    {949, "windows-949"},
    {950, "windows-950"},
    {1250, "windows-1250"},
    {1251, "windows-1251"},
    {1252, "windows-1252"},
    {1253, "windows-1253"},
    {1254, "windows-1254"},
    {1255, "windows-1255"},
    {1256, "windows-1256"},
    {1257, "windows-1257"},
    {1258, "windows-1258"},
    {10000, "macintosh"},
    {10001, "windows-932"},
    {10002, "windows-950"},
    {10003, "windows-949"},
    {10004, "ISO-8859-6"},
    {10005, "windows-1255"},
    {10006, "x-mac-greek"},
    {10007, "x-mac-cyrillic"},
    {10008, "windows-936"},
    {10021, "windows-874"},
    {10029, "x-mac-ce"},
    {10081, "x-mac-turkish"},
    {20127, "windows-1252"},
    {20866, "KOI8-R"},
    {20932, "EUC-JP"},
    {20936, "windows-936"},
    {21866, "KOI8-U"},
    {28591, "ISO-8859-1"},
    {28592, "ISO-8859-2"},
    {28593, "ISO-8859-3"},
    {28594, "ISO-8859-4"},
    {28595, "ISO-8859-5"},
    {28596, "ISO-8859-6"},
    {28597, "ISO-8859-7"},
    {28598, "ISO-8859-8"},
    {28599, "ISO-8859-9"},
    {28603, "ISO-8859-13"},
    {28605, "ISO-8859-15"},
    {51932, "EUC-JP"},
    {51936, "windows-936"},
    {51949, "windows-949"},
    {54936, "GB18030"},
    {65001, "UTF-8"},
};

struct Charset {
    qint32 charset;
    qint32 page;
};

/// Ascending by charset. 1, the default, is missing.
constexpr Charset charsets[] = {
    {0, 1252},
    {2, pictureFontNumber},
    {77, 10000},
    {78, 10001},
    {79, 10003},
    {80, 10008},
    {81, 10002},
    {82, 10003},
    {83, 10005},
    {84, 10004},
    {85, 10006},
    {86, 10081},
    {87, 10021},
    {88, 10029},
    {89, 10007},
    {128, 932},
    {129, 949},
    {134, 936},
    {136, 950},
    {161, 1253},
    {162, 1254},
    {163, 1258},
    {177, 1255},
    {178, 1256},
    {179, 1256},
    {180, 1256},
    {181, 1255},
    {186, 1257},
    {204, 1251},
    {222, 874},
    {238, 1250},
    {254, 437},
    {255, 850},
};

} // namespace

const RtfCodePage *rtfCodePage(qint32 number)
{
    if (number < 0)
        return nullptr;
    const auto *found = std::ranges::lower_bound(pages, number, {}, &RtfCodePage::number);
    return found != std::end(pages) && found->number == number ? found : nullptr;
}

const RtfCodePage *rtfCodePageOfCharset(qint32 charset)
{
    const auto *found = std::ranges::lower_bound(charsets, charset, {}, &Charset::charset);
    return found != std::end(charsets) && found->charset == charset ? rtfCodePage(found->page) : nullptr;
}

const RtfCodePage *defaultRtfCodePage()
{
    return rtfCodePage(1252);
}

const RtfCodePage *rtfCodePageOfSymbolFont()
{
    return std::begin(pages);
}

qsizetype rtfCodePageCount()
{
    return std::ssize(pages);
}

qsizetype rtfCodePageIndex(const RtfCodePage *page)
{
    return page - std::begin(pages);
}
