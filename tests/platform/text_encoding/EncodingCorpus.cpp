// SPDX-License-Identifier: MIT
#include "tests/platform/text_encoding/EncodingCorpus.h"

#include "tests/documents/SampleTexts.h"

#include <QStringList>

#include <algorithm>

namespace {

using namespace SampleTexts;

struct Language {
    const char *name;
    QString text; ///< sentences that end in a full stop and a space, or a line end
    const char *encodings;
};

const QString bulgarian = QStringLiteral("Снощи дълго се разхождахме край реката. Вече беше тъмно, но луната "
                                         "светеше толкова силно, че виждахме всеки "
                                         "камък. Сестра ми разказваше за книгата, която чете в момента. Може "
                                         "би утре ще отидем още по-далеч, чак до "
                                         "старата воденица под гората.\n");
const QString macedonian = QStringLiteral("Синоќа долго се шетавме покрај реката. Веќе беше темно, но "
                                          "месечината светеше толку силно што го гледавме секој "
                                          "камен. Сестра ми зборуваше за книгата што ја чита сега. Можеби "
                                          "утре ќе одиме уште подалеку, до старата воденица "
                                          "под шумата.\n");
const QString serbian = QStringLiteral("Синоћ смо дуго шетали поред реке. Већ је било мрачно, али је месец "
                                       "сијао тако јако да смо видели сваки камен. "
                                       "Сестра је причала о књизи коју сада чита. Можда ћемо сутра ићи још "
                                       "даље, све до старог млина испод шуме.\n");
const QString belarusian = QStringLiteral("Учора ўвечары мы доўга гулялі ўздоўж ракі. Было ўжо цёмна, але "
                                          "месяц свяціў так ярка, што мы бачылі кожны камень. "
                                          "Сястра расказвала пра кнігу, якую яна цяпер чытае. Можа быць, "
                                          "заўтра пойдзем яшчэ далей, да старога млына пад "
                                          "лесам.\n");
const QString thai =
    QStringLiteral("เมื่อคืนนี้เราเดินเล่นริมแม่น้ำเป็นเวลานาน ฟ้ามืดแล้ว แต่พระจันทร์สว่างมากจนเราเห็นก้อนหินทุกก้อน\n"
                   "น้องสาวเล่าเรื่องหนังสือที่เธอกำลังอ่านอยู่ พรุ่งนี้เราอาจจะไปไกลกว่านี้ จนถึงโรงสีเก่าใต้ป่า\n");
const QString hungarian = QStringLiteral("Tegnap este hosszú sétát tettünk a folyó mentén. Már sötét volt, "
                                         "de a hold olyan fényesen világított, hogy minden "
                                         "követ láttunk. A nővérem a könyvről beszélt, amelyet éppen olvas. "
                                         "Talán holnap még messzebbre megyünk, egészen az "
                                         "erdő alatti öreg malomig. Bőven lesz időnk, és ő is örülne.\n");
const QString romanian =
    QStringLiteral("Aseară am făcut o plimbare lungă de-a lungul râului. Era deja întuneric, dar luna "
                   "strălucea atât de tare încât "
                   "vedeam fiecare piatră. Sora mea povestea despre cartea pe care o citeşte acum. Poate că "
                   "mâine vom merge şi mai "
                   "departe, până la vechea moară de lângă pădure, fiindcă ţine mult la ea.\n");
const QString croatian = QStringLiteral("Sinoć smo dugo šetali uz rijeku. Već je bilo mračno, ali je mjesec "
                                        "sjao tako jako da smo vidjeli svaki kamen. "
                                        "Sestra je pričala o knjizi koju sada čita. Možda ćemo sutra otići "
                                        "još dalje, sve do staroga mlina ispod šume, "
                                        "gdje žive naši rođaci.\n");
const QString slovene = QStringLiteral("Sinoči smo se dolgo sprehajali ob reki. Bilo je že temno, a luna je "
                                       "sijala tako močno, da smo videli vsak kamen. "
                                       "Sestra je pripovedovala o knjigi, ki jo zdaj bere. Mogoče bomo jutri "
                                       "šli še dlje, vse do starega mlina pod "
                                       "gozdom, kjer je čisto tiho.\n");
const QString slovak = QStringLiteral("Včera večer sme sa dlho prechádzali popri rieke. Už bola tma, ale "
                                      "mesiac svietil tak jasne, že sme videli každý "
                                      "kameň. Moja sestra rozprávala o knihe, ktorú práve číta. Možno zajtra "
                                      "pôjdeme ešte ďalej, až k starému mlynu pod "
                                      "lesom. Bude to pekný deň.\n");
const QString lithuanian = QStringLiteral("Vakar vakare ilgai vaikščiojome palei upę. Jau buvo tamsu, bet "
                                          "mėnulis švietė taip ryškiai, kad matėme kiekvieną "
                                          "akmenį. Sesuo pasakojo apie knygą, kurią dabar skaito. Galbūt "
                                          "rytoj eisime dar toliau, iki senojo malūno "
                                          "pamiškėje, nes ten labai gražu.\n");
const QString latvian = QStringLiteral("Vakar vakarā mēs ilgi pastaigājāmies gar upi. Jau bija tumšs, bet "
                                       "mēness spīdēja tik spoži, ka redzējām katru "
                                       "akmeni. Mana māsa stāstīja par grāmatu, kuru viņa tagad lasa. Varbūt "
                                       "rīt iesim vēl tālāk, līdz vecajām dzirnavām "
                                       "zem meža.\n");
const QString estonian = QStringLiteral("Eile õhtul jalutasime kaua jõe ääres. Oli juba pime, aga kuu "
                                        "paistis nii eredalt, et nägime iga kivi. Mu õde "
                                        "rääkis raamatust, mida ta praegu loeb. Võib-olla läheme homme veel "
                                        "kaugemale, kuni vana veskini metsa all.\n");
const QString danish = QStringLiteral("I går aftes gik vi en lang tur langs åen. Det var allerede mørkt, men "
                                      "månen lyste så klart, at vi så hver eneste "
                                      "sten. Min søster fortalte om den bog, hun læser nu. Måske går vi "
                                      "endnu længere i morgen, helt til den gamle mølle "
                                      "under skoven.\n");
const QString finnish = QStringLiteral("Eilen illalla kävelimme pitkään joen vartta. Oli jo pimeää, mutta "
                                       "kuu paistoi niin kirkkaasti, että näimme joka "
                                       "kiven. Sisareni kertoi kirjasta, jota hän nyt lukee. Ehkä huomenna "
                                       "menemme vielä kauemmas, vanhalle myllylle "
                                       "metsän reunaan.\n");
const QString icelandic = QStringLiteral("Í gærkvöldi fórum við í langan göngutúr meðfram ánni. Það var "
                                         "þegar orðið dimmt, en tunglið skein svo skært að við "
                                         "sáum hvern stein. Systir mín sagði frá bókinni sem hún er að lesa. "
                                         "Kannski förum við enn lengra á morgun, alla "
                                         "leið að gömlu myllunni.\n");
const QString dutch = QStringLiteral("Gisteravond maakten we een lange wandeling langs de rivier. Het was al "
                                     "donker, maar de maan scheen zo fel dat we "
                                     "iedere steen zagen. Mijn zus vertelde over de ideeën in het boek dat "
                                     "ze leest. Misschien gaan we morgen één "
                                     "dorp verder, tot aan het café van de geïnteresseerde buren.\n");
const QString catalan = QStringLiteral("Ahir al vespre vam fer una llarga passejada vora el riu. Ja era "
                                       "fosc, però la lluna brillava tant que vèiem cada "
                                       "pedra. La meva germana parlava del llibre que està llegint. Potser "
                                       "demà anirem més lluny, fins a l'antic molí, "
                                       "perquè així ho vol la família.\n");
const QString irish = QStringLiteral("Tráthnóna inné chuamar ag siúl cois abhann. Bhí sé dorcha cheana féin, "
                                     "ach bhí an ghealach chomh geal sin go "
                                     "bhfacamar gach cloch. Bhí mo dheirfiúr ag caint faoin leabhar atá á "
                                     "léamh aici. B'fhéidir go rachaimid níos faide "
                                     "amárach.\n");
const QString esperanto = QStringLiteral("Hieraŭ vespere ni longe promenis laŭ la rivero. Jam estis mallume, "
                                         "sed la luno brilis tiel forte, ke ni vidis "
                                         "ĉiun ŝtonon. Mia fratino rakontis pri la libro, kiun ŝi ĵus legas. "
                                         "Eble morgaŭ ni iros ankoraŭ pli malproksimen, "
                                         "ĝis la malnova muelejo.\n");
const QString persian = QStringLiteral(
    "ديشب کنار رودخانه خيلي قدم زديم. هوا تاريک شده بود، اما ماه چنان "
    "مي‌درخشيد که همه "
    "سنگ‌ها را مي‌ديديم. "
    "خواهرم درباره کتابي که مي‌خواند حرف مي‌زد. شايد فردا "
    "دورتر "
    "برويم، تا آسياب پير کنار "
    "جنگل.\n");

const Language languages[] = {
    {"Russian", russian, "windows-1251 KOI8-R ISO-8859-5 IBM866 IBM855 x-mac-cyrillic"},
    {"Bulgarian", bulgarian, "windows-1251 ISO-8859-5 IBM855"},
    {"Ukrainian", ukrainian, "windows-1251 KOI8-U ISO-8859-5"},
    {"Macedonian", macedonian, "windows-1251 ISO-8859-5"},
    {"Serbian", serbian, "windows-1251 ISO-8859-5"},
    {"Belarusian", belarusian, "windows-1251"},
    {"Greek", greek, "windows-1253 ISO-8859-7 IBM737"},
    {"Hebrew", hebrew, "windows-1255 ISO-8859-8 IBM862"},
    {"Arabic", arabic, "windows-1256 ISO-8859-6"},
    {"Persian", persian, "windows-1256"},
    {"Thai", thai, "TIS-620 windows-874"},
    {"Turkish", turkish, "windows-1254"},
    {"Polish", polish, "windows-1250 ISO-8859-2 IBM852"},
    {"Czech", czech, "windows-1250 ISO-8859-2 IBM852"},
    {"Slovak", slovak, "windows-1250 ISO-8859-2"},
    {"Hungarian", hungarian, "windows-1250 ISO-8859-2 IBM852"},
    {"Romanian", romanian, "windows-1250 ISO-8859-2"},
    {"Croatian", croatian, "windows-1250 ISO-8859-2"},
    {"Slovene", slovene, "windows-1250 ISO-8859-2"},
    {"Lithuanian", lithuanian, "windows-1257 ISO-8859-13"},
    {"Latvian", latvian, "windows-1257 ISO-8859-13"},
    {"Estonian", estonian, "windows-1252 windows-1257"},
    {"English", english, "windows-1252"},
    {"German", german, "windows-1252 IBM850"},
    {"French", french, "windows-1252 IBM850"},
    {"Spanish", spanish, "windows-1252"},
    {"Portuguese", portuguese, "windows-1252"},
    {"Italian", italian, "windows-1252"},
    {"Catalan", catalan, "windows-1252"},
    {"Dutch", dutch, "windows-1252"},
    {"Danish", danish, "windows-1252"},
    {"Swedish", swedish, "windows-1252"},
    {"Finnish", finnish, "windows-1252"},
    {"Icelandic", icelandic, "windows-1252"},
    {"Irish", irish, "windows-1252"},
    {"Esperanto", esperanto, "ISO-8859-3"},
    {"Japanese", japanese, "Shift_JIS EUC-JP ISO-2022-JP"},
    {"Korean", korean, "EUC-KR windows-949"},
    {"SimplifiedChinese", simplifiedChinese, "GB2312 GBK gb18030"},
    {"TraditionalChinese", traditionalChinese, "Big5 EUC-TW"},
};

bool isEastAsian(const QString &text)
{
    return text.contains(u'。') || text.contains(QStringLiteral("습니다"));
}

QStringList sentencesOf(const QString &text)
{
    QStringList sentences;
    const QString separated = QString(text).replace(QStringLiteral("。"), QStringLiteral("。\n"));
    for (const QString &line : separated.split(u'\n', Qt::SkipEmptyParts))
        sentences += line.split(QStringLiteral(". "), Qt::SkipEmptyParts);
    return sentences;
}

QStringList plainTexts(const QString &text, SampleLength length)
{
    if (length == SampleLength::Long)
        return {text, text.repeated(20)};
    QStringList texts = sentencesOf(text);
    if (length == SampleLength::Short) {
        for (QString &sentence : texts) {
            const qsizetype space = isEastAsian(text) ? 8 : sentence.indexOf(u' ', 24);
            sentence = sentence.left(space < 0 ? 24 : space);
        }
    }
    return texts;
}

QString asPage(const QString &text)
{
    return QStringLiteral("<html>\n<head><title>Page</title><style>body { font: 12pt Arial }</style></head>\n"
                          "<body bgcolor=\"white\"><table width=\"100%\"><tr><td class=\"main\">"
                          "<a href=\"http://www.example.org/index.php?id=1\">%1</a></td></tr></table>\n"
                          "<script>var menu = document.getElementById('menu');</script></body></html>\n")
        .arg(text);
}

QString asSubtitles(const QString &text)
{
    return QStringLiteral("1\r\n00:00:01,000 --> 00:00:04,000\r\n%1\r\n\r\n").arg(text.trimmed());
}

bool isOfAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar unit) { return unit.unicode() < 0x80; });
}

} // namespace

std::vector<EncodedSample> encodedSamples(SampleLength length)
{
    std::vector<EncodedSample> samples;
    for (const Language &language : languages) {
        for (const QByteArray &encoding : QByteArray(language.encodings).split(' ')) {
            for (const QString &plain : plainTexts(language.text, length)) {
                if (isOfAscii(plain))
                    continue;
                for (const QString &text : {plain, asPage(plain), asSubtitles(plain)})
                    samples.push_back(
                        {language.name, encoding, text, encodeText(text, encoding.constData())});
            }
        }
    }
    return samples;
}
