// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfCodePage.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr qint32 pictureFontNumber = 42; // the number of symbol fonts in Windows
constexpr qint32 symbolFontNumber = -42; // our own; documents cannot name it

constexpr auto encoding = RtfCodePage::Kind::Encoding;

/// Ascending by number. ICU lacks the Macintosh pages of East Asia and the Near East; those of Windows and
/// ISO have the same letters.
constexpr RtfCodePage pages[] = {
    {symbolFontNumber, RtfCodePage::Kind::SymbolFont, nullptr},
    {pictureFontNumber, RtfCodePage::Kind::PictureFont, nullptr},
    {437, encoding, "ibm-437"},
    {708, encoding, "ibm-1089"},
    {720, encoding, "ibm-720"},
    {737, encoding, "ibm-737"},
    {775, encoding, "ibm-775"},
    {819, encoding, "ISO-8859-1"},
    {850, encoding, "ibm-850"},
    {852, encoding, "ibm-852"},
    {855, encoding, "ibm-855"},
    {857, encoding, "ibm-857"},
    {858, encoding, "ibm-858"},
    {860, encoding, "ibm-860"},
    {861, encoding, "ibm-861"},
    {862, encoding, "ibm-862"},
    {863, encoding, "ibm-863"},
    {864, encoding, "ibm-864"},
    {865, encoding, "ibm-865"},
    {866, encoding, "ibm-866"},
    {869, encoding, "ibm-869"},
    {874, encoding, "windows-874"},
    {932, encoding, "windows-932"},
    {936, encoding, "windows-936"},
    {949, encoding, "windows-949"},
    {950, encoding, "windows-950"},
    {1250, encoding, "windows-1250"},
    {1251, encoding, "windows-1251"},
    {1252, encoding, "windows-1252"},
    {1253, encoding, "windows-1253"},
    {1254, encoding, "windows-1254"},
    {1255, encoding, "windows-1255"},
    {1256, encoding, "windows-1256"},
    {1257, encoding, "windows-1257"},
    {1258, encoding, "windows-1258"},
    {10000, encoding, "macintosh"},
    {10001, encoding, "windows-932"},
    {10002, encoding, "windows-950"},
    {10003, encoding, "windows-949"},
    {10004, encoding, "ISO-8859-6"},
    {10005, encoding, "windows-1255"},
    {10006, encoding, "x-mac-greek"},
    {10007, encoding, "x-mac-cyrillic"},
    {10008, encoding, "windows-936"},
    {10021, encoding, "windows-874"},
    {10029, encoding, "x-mac-ce"},
    {10081, encoding, "x-mac-turkish"},
    {20127, encoding, "windows-1252"},
    {20866, encoding, "KOI8-R"},
    {20932, encoding, "EUC-JP"},
    {20936, encoding, "windows-936"},
    {21866, encoding, "KOI8-U"},
    {28591, encoding, "ISO-8859-1"},
    {28592, encoding, "ISO-8859-2"},
    {28593, encoding, "ISO-8859-3"},
    {28594, encoding, "ISO-8859-4"},
    {28595, encoding, "ISO-8859-5"},
    {28596, encoding, "ISO-8859-6"},
    {28597, encoding, "ISO-8859-7"},
    {28598, encoding, "ISO-8859-8"},
    {28599, encoding, "ISO-8859-9"},
    {28603, encoding, "ISO-8859-13"},
    {28605, encoding, "ISO-8859-15"},
    {51932, encoding, "EUC-JP"},
    {51936, encoding, "windows-936"},
    {51949, encoding, "windows-949"},
    {54936, encoding, "GB18030"},
    {65001, encoding, "UTF-8"},
};

struct Charset {
    qint32 charset;
    qint32 page;
};

/// Ascending by charset. Without 1, which means the page of the document.
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
