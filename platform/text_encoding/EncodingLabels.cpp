// SPDX-License-Identifier: MIT
#include "platform/text_encoding/EncodingLabels.h"

#include "platform/text_encoding/JohabText.h"

#include <QByteArray>
#include <QHash>

namespace {

struct Labels {
    const char *encoding;
    const char *labels; ///< separated by spaces
};

// In the order of the table in the Encoding Standard, followed by encodings found in plain text only.
constexpr Labels labelTable[] = {
    {"UTF-8", "unicode-1-1-utf-8 unicode11utf8 unicode20utf8 utf-8 utf8 x-unicode20utf8"},
    {"IBM866", "866 cp866 csibm866 ibm866"},
    {"ISO-8859-2",
        "csisolatin2 iso-8859-2 iso-ir-101 iso8859-2 iso88592 iso_8859-2 iso_8859-2:1987 l2 latin2 "
        "iso-8859-16"},
    {"ISO-8859-3",
        "csisolatin3 iso-8859-3 iso-ir-109 iso8859-3 iso88593 iso_8859-3 iso_8859-3:1988 l3 latin3"},
    {"ISO-8859-4",
        "csisolatin4 iso-8859-4 iso-ir-110 iso8859-4 iso88594 iso_8859-4 iso_8859-4:1988 l4 latin4"},
    {"ISO-8859-5",
        "csisolatincyrillic cyrillic iso-8859-5 iso-ir-144 iso8859-5 iso88595 iso_8859-5 iso_8859-5:1988"},
    {"ISO-8859-6",
        "arabic asmo-708 csiso88596e csiso88596i csisolatinarabic ecma-114 iso-8859-6 iso-8859-6-e "
        "iso-8859-6-i iso-ir-127 iso8859-6 iso88596 iso_8859-6 iso_8859-6:1987"},
    {"ISO-8859-7",
        "csisolatingreek ecma-118 elot_928 greek greek8 iso-8859-7 iso-ir-126 iso8859-7 iso88597 iso_8859-7 "
        "iso_8859-7:1987 sun_eu_greek"},
    {"ISO-8859-8",
        "csiso88598e csisolatinhebrew hebrew iso-8859-8 iso-8859-8-e iso-ir-138 iso8859-8 iso88598 "
        "iso_8859-8 "
        "iso_8859-8:1988 visual csiso88598i iso-8859-8-i logical"},
    {"ISO-8859-10", "csisolatin6 iso-8859-10 iso-ir-157 iso8859-10 iso885910 l6 latin6"},
    {"ISO-8859-13", "iso-8859-13 iso8859-13 iso885913"},
    {"ISO-8859-14", "iso-8859-14 iso8859-14 iso885914"},
    {"ISO-8859-15", "csisolatin9 iso-8859-15 iso8859-15 iso885915 iso_8859-15 l9"},
    {"KOI8-R", "cskoi8r koi koi8 koi8-r koi8_r"},
    {"KOI8-U", "koi8-ru koi8-u"},
    {"macintosh", "csmacintosh mac macintosh x-mac-roman"},
    {"windows-874", "dos-874 iso-8859-11 iso8859-11 iso885911 tis-620 windows-874"},
    {"windows-1250", "cp1250 windows-1250 x-cp1250"},
    {"windows-1251", "cp1251 windows-1251 x-cp1251"},
    {"windows-1252",
        "ansi_x3.4-1968 ascii cp1252 cp819 csisolatin1 ibm819 iso-8859-1 iso-ir-100 iso8859-1 iso88591 "
        "iso_8859-1 iso_8859-1:1987 l1 latin1 us-ascii windows-1252 x-cp1252 x-user-defined"},
    {"windows-1253", "cp1253 windows-1253 x-cp1253"},
    {"windows-1254",
        "cp1254 csisolatin5 iso-8859-9 iso-ir-148 iso8859-9 iso88599 iso_8859-9 iso_8859-9:1989 l5 latin5 "
        "windows-1254 x-cp1254"},
    {"windows-1255", "cp1255 windows-1255 x-cp1255"},
    {"windows-1256", "cp1256 windows-1256 x-cp1256"},
    {"windows-1257", "cp1257 windows-1257 x-cp1257"},
    {"windows-1258", "cp1258 windows-1258 x-cp1258"},
    {"x-mac-cyrillic", "mac-cyrillic x-mac-cyrillic x-mac-ukrainian"},
    {"gb18030", "chinese csgb2312 csiso58gb231280 gb2312 gb_2312 gb_2312-80 gbk iso-ir-58 x-gbk gb18030"},
    {"Big5-HKSCS", "big5 big5-hkscs cn-big5 csbig5 x-x-big5"},
    {"EUC-JP", "cseucpkdfmtjapanese euc-jp x-euc-jp"},
    {"ISO-2022-JP", "csiso2022jp iso-2022-jp"},
    {"Shift_JIS", "csshiftjis ms932 ms_kanji shift-jis shift_jis sjis windows-31j x-sjis"},
    {"windows-949",
        "cseuckr csksc56011987 euc-kr iso-ir-149 korean ks_c_5601-1987 ks_c_5601-1989 ksc5601 ksc_5601 uhc "
        "windows-949"},
    {"ISO-2022-KR", "csiso2022kr iso-2022-kr"},
    {"HZ", "hz-gb-2312"},
    {"ISO-2022-CN-EXT", "iso-2022-cn iso-2022-cn-ext"},
    {"UTF-16BE", "unicodefffe utf-16be"},
    {"UTF-16LE", "csunicode iso-10646-ucs-2 ucs-2 unicode unicodefeff utf-16 utf-16le"},
    {"UTF-32LE", "utf-32 utf-32le ucs-4 iso-10646-ucs-4"},
    {"UTF-32BE", "utf-32be"},
    {"IBM437", "437 cp437 cspc8codepage437 ibm437"},
    {"IBM737", "737 cp737 ibm737"},
    {"IBM775", "775 cp775 cspc775baltic ibm775"},
    {"IBM850", "850 cp850 cspc850multilingual ibm850"},
    {"IBM852", "852 cp852 cspcp852 ibm852"},
    {"IBM855", "855 cp855 csibm855 ibm855"},
    {"IBM857", "857 cp857 csibm857 ibm857"},
    {"IBM862", "862 cp862 cspc862latinhebrew ibm862"},
    {"x-mac-ce", "mac-centraleurope x-mac-ce x-mac-centraleurroman"},
    {"x-mac-greek", "x-mac-greek"},
    {"EUC-TW", "euc-tw x-euc-tw"},
    {johabEncoding, "cp1361 johab ms1361"},
};

QHash<QByteArray, const char *> encodingsByLabel()
{
    QHash<QByteArray, const char *> encodings;
    for (const Labels &row : labelTable) {
        for (const QByteArray &label : QByteArray(row.labels).split(' '))
            encodings.insert(label, row.encoding);
    }
    return encodings;
}

} // namespace

const char *encodingOfLabel(QByteArrayView label)
{
    constexpr qsizetype maxLabelLength = 100; // bytes, including white space
    static const QHash<QByteArray, const char *> encodings = encodingsByLabel();
    if (label.size() > maxLabelLength)
        return nullptr;
    return encodings.value(label.toByteArray().trimmed().toLower());
}
