// SPDX-License-Identifier: MIT
#include "platform/text_encoding/Alphabets.h"

namespace {

using Member = EncodingFamily::Member;

// An encoding whose letters are a subset of another's is left out: windows-1252 replaces ISO-8859-1,
// windows-1254 ISO-8859-9, windows-1255 ISO-8859-8, windows-874 TIS-620, and KOI8-U KOI8-R. The encodings of
// DOS and of the old Mac have low priors because they are rare today.
constexpr Member latinEncodings[] = {
    {"windows-1252", 0},
    {"windows-1250", -0.3},
    {"ISO-8859-2", -0.5},
    {"windows-1254", -0.7},
    {"windows-1257", -1},
    {"ISO-8859-15", -1},
    {"ISO-8859-13", -2},
    {"windows-1258", -1.5},
    {"ISO-8859-3", -2},
    {"ISO-8859-4", -2},
    {"IBM850", -3},
    {"IBM852", -3},
    {"IBM857", -3.5},
    {"IBM775", -3.5},
    {"macintosh", -4},
    {"x-mac-ce", -4.5},
};

constexpr Member cyrillicEncodings[] = {
    {"windows-1251", 0},
    {"KOI8-U", -0.5},
    {"ISO-8859-5", -1},
    {"IBM866", -1},
    {"x-mac-cyrillic", -2},
    {"IBM855", -2},
};

constexpr Member greekEncodings[] = {
    {"windows-1253", 0}, {"ISO-8859-7", -0.2}, {"IBM737", -2}, {"x-mac-greek", -4}};
constexpr Member hebrewEncodings[] = {{"windows-1255", 0}, {"IBM862", -2}};
constexpr Member arabicEncodings[] = {{"windows-1256", 0}, {"ISO-8859-6", -0.5}};
constexpr Member thaiEncodings[] = {{"windows-874", 0}};

constexpr Alphabet latinAlphabets[] = {
    {"de", u"äüöß", "der die und das ist nicht den mit ein eine war auf von"},
    {"fr", u"éèàêôîçâïûùœëüæ", "le la les des est et un une pour dans que qui nous"},
    {"es", u"óáíúéñü", "el la los las que de en un una por con se no"},
    {"pt", u"ãçáíéóúõêâàôü", "que de do da em um uma para com se os as nem"},
    {"it", u"èàòùéìî", "il la che di un una per non con del della le sono"},
    {"ca", u"óàéíèúçòïü", "el la els les que de amb un una per no vam va"},
    {"nl", u"ëéïóöüè", "de het een en van was dat we niet op zijn maar"},
    {"da", u"æøåé", "og det er en den til af som vi ikke var de"},
    {"sv", u"äöåé", "och det att en som den av var hon han inte med"},
    {"fi", u"äöåšž", "ja on oli se ei joka niin mutta kun ovat"},
    {"et", u"äõüöšž", "ja on oli see ei aga et kui mu ta"},
    {"is", u"ðíáóúýæöþé", "og var sem en til hann ekki um er mun"},
    {"ga", u"áíéúó", "agus an na ag ar is go raibh le bhfuil"},
    {"pl", u"łżęąśóćńź", "nie na do jest to ale po tak jak od"},
    {"cs", u"íářčéýžěšůúóňťď", "na se je to ale jsme byla byl tak jsem od"},
    {"sk", u"áčíýťéúžšľóňôäĺďŕ", "na sa je to ale sme bola bol tak som od"},
    {"hu", u"éáíóöőüúű", "az hogy nem de volt meg ez egy is"},
    {"hr", u"čšžćđ", "je na se da su ali bilo smo sam za od"},
    {"ro", u"ăţîâş", "de la nu cu din pe care era dar mai"},
    {"lt", u"šėųžįąčūę", "ir bet buvo kad taip apie yra iki jau tai"},
    {"lv", u"āēīšļūņžķģčō", "un ir bija bet par ar tik jau no mana ka"},
    {"tr", u"ıçşüğöâîû", "bir ve bu ama kadar de da ne ile"},
    {"eo", u"ĉĝŭŝĵĥ", "la kaj ni estas de sed ke pri en"},
    {"mt", u"żċġħàùì", "il ta li"},
    {"vi", u"\u0301\u0300đôư\u0323aêơă\u0309â\u0303"},
    {"sq", u"ëç", "dhe nga"},
    // English borrows words and names from all the others: "façade", "jalapeño", "Łódź".
    {"en", u"éèáöüçñäóíàêôâåøæãúëïîßûùłšžčő", "the and of to in that is was he she it for with have"},
};

constexpr Alphabet cyrillicAlphabets[] = {
    {"ru", u"оеаинтрслвкпдмуязьыйбчгжфцхюшщэёъ"},
    {"uk", u"аноиетвіркслдпумязбьйгчжцхєфшюїщґ"},
    {"bg", u"аениотрсвдкплзмъябучгжйфцшщхюьѝ"},
    {"be", u"анркіыслетдявпмоуцзэьгбўчйшхфжюё"},
    {"sr", u"аеионрсткупдвмзјлбгчњшцљжћхфђџ"},
    {"mk", u"аеоитнрксвдлпмузјбгчцњжшфхќѓљџѕ"},
};

constexpr Alphabet greekAlphabets[] = {{"el", u"αοετινσρμηπκυςλίγδήέάόχωθφύβώζξψϊϋΐΰ"}};
constexpr Alphabet hebrewAlphabets[] = {
    {"he", u"יוהלתמראנבשקפדסגטעחםןכצזךץף\u05B8\u05B4\u05B7\u05B6\u05B0\u05BC\u05B5\u05C1"}};
constexpr Alphabet arabicAlphabets[] = {
    {"ar", u"اليمروتةنفدسعبحقكجصأطهخإشذغزضىثئءظؤآ\u0651\u064B\u0650\u064F\u064E\u0652"},
    {"fa", u"اينردوهتمبسكشلپزگفجخعقصحطچآغذظضئثژ"},
};
constexpr Alphabet thaiAlphabets[] = {{"th",
    u"ารอกนมเ\u0E48\u0E49งลด\u0E31\u0E35ต\u0E34สบยวแไ\u0E4Cทคขปหจพ\u0E39ะช\u0E37โซำ\u0E38ใฟถ\u0E47ณผภธษฐ"
    u"\u0E36ฮญศฉฤฝๆฏฬฑฎ"}};

constexpr EncodingFamily families[] = {
    {QChar::Script_Latin, latinEncodings, latinAlphabets},
    {QChar::Script_Cyrillic, cyrillicEncodings, cyrillicAlphabets},
    {QChar::Script_Greek, greekEncodings, greekAlphabets},
    {QChar::Script_Hebrew, hebrewEncodings, hebrewAlphabets},
    {QChar::Script_Arabic, arabicEncodings, arabicAlphabets},
    {QChar::Script_Thai, thaiEncodings, thaiAlphabets},
};

} // namespace

std::span<const EncodingFamily> encodingFamilies()
{
    return families;
}
