// SPDX-License-Identifier: MIT
#include "tests/documents/SampleTexts.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>

#include <gtest/gtest.h>

namespace SampleTexts {

const QString english = QStringLiteral(
    "“I have read the whole chapter,” she said, “and I’m still not sure who stole the clock.” "
    "He looked up from his coffee – it had long gone cold – and shrugged…\n"
    "Nobody in the village spoke of it again; the café closed, and the naïve young reporter went home.\n");

const QString french = QStringLiteral(
    "L'été dernier, nous avons loué une petite maison près de la forêt. Chaque matin, le facteur passait à "
    "bicyclette et déposait le courrier sur le mur du jardin.\n"
    "Ma grand-mère préparait déjà le café ; la fenêtre était ouverte et l'on entendait les enfants du "
    "voisin. Où sont-ils passés, ces jours où rien ne pressait ?\n");

const QString german = QStringLiteral(
    "Über den Dächern der Stadt lag früh am Morgen noch Nebel. Die Bäckerei an der Ecke hatte schon "
    "geöffnet, und ein müder Straßenbahnfahrer kaufte zwei Brötchen.\n"
    "»Schönes Wetter wird das heute nicht mehr«, sagte er und zählte das Kleingeld. Draußen hörte man "
    "die Glocken läuten.\n");

const QString spanish = QStringLiteral(
    "¿Quién dejó abierta la ventana del salón? Anoche llovió mucho y el suelo está lleno de agua. Mi "
    "hermano pequeño dice que no fue él, pero mañana se lo preguntaré otra vez.\n"
    "El año pasado ocurrió lo mismo: nadie sabía nada, y al final había sido el gato.\n");

const QString italian = QStringLiteral(
    "La città era ancora più bella di come la ricordavo. Perché non siamo rimasti un giorno di più? La "
    "signora dell'albergo ci ha detto che però il museo sarà chiuso fino a lunedì.\n"
    "Così abbiamo preso il treno e, già stanchi, siamo arrivati al mare verso sera. È stata una buona "
    "idea.\n");

const QString portuguese = QStringLiteral(
    "A estação ficava no fim da rua e não havia ninguém à espera. O comboio chegou às três horas, "
    "quando a chuva já tinha começado.\n"
    "Só então percebi que me tinha esquecido da mala; o coração batia depressa, mas ninguém reparou na "
    "minha aflição.\n");

const QString swedish = QStringLiteral(
    "På våren börjar fåglarna sjunga långt före gryningen. Vi bodde då i ett rött hus nära sjön, och "
    "min syster brukade väcka mig för att gå ner till båten.\n"
    "Hon sade aldrig något på vägen. När vi kom fram låg dimman ännu över vattnet, och allt var tyst.\n");

const QString polish = QStringLiteral(
    "Wczoraj wieczorem poszliśmy na długi spacer wzdłuż rzeki. Było już ciemno, ale księżyc świecił tak "
    "jasno, że widzieliśmy każdy kamień.\n"
    "Moja siostra opowiadała o książce, którą właśnie czyta. Może jutro pójdziemy jeszcze dalej, aż do "
    "starego młyna pod lasem.\n");

const QString czech = QStringLiteral(
    "Včera večer jsme šli na dlouhou procházku podél řeky. Už byla tma, ale měsíc svítil tak jasně, že "
    "jsme viděli každý kámen.\n"
    "Moje sestra vyprávěla o knize, kterou právě čte. Možná zítra půjdeme ještě dál, až ke starému "
    "mlýnu pod lesem.\n");

const QString turkish = QStringLiteral(
    "Dün akşam nehir boyunca uzun bir yürüyüşe çıktık. Hava kararmıştı, ama ay o kadar parlaktı ki her "
    "taşı görebiliyorduk.\n"
    "Kız kardeşim okuduğu kitabı anlattı. Belki yarın daha uzağa, ormanın altındaki eski değirmene "
    "kadar gideriz. İyi bir fikir değil mi?\n");

const QString greek = QStringLiteral(
    "Χθες το βράδυ κάναμε έναν μεγάλο περίπατο δίπλα στο ποτάμι. Είχε ήδη σκοτεινιάσει, αλλά το φεγγάρι "
    "έλαμπε τόσο που βλέπαμε κάθε πέτρα.\n"
    "Η αδελφή μου μιλούσε για το βιβλίο που διαβάζει. Ίσως αύριο να πάμε ακόμη πιο μακριά, μέχρι τον "
    "παλιό μύλο κάτω από το δάσος.\n");

const QString russian = QStringLiteral(
    "Вчера вечером мы долго гуляли вдоль реки. Было уже темно, но луна светила так ярко, что мы видели "
    "каждый камень.\n"
    "Сестра рассказывала о книге, которую она сейчас читает. Может быть, завтра мы пойдём ещё дальше, "
    "до старой мельницы под лесом.\n");

const QString ukrainian = QStringLiteral(
    "Учора ввечері ми довго гуляли вздовж річки. Було вже темно, але місяць світив так яскраво, що ми "
    "бачили кожен камінь.\n"
    "Сестра розповідала про книжку, яку вона зараз читає. Може, завтра підемо ще далі, аж до старого "
    "млина під лісом.\n");

const QString hebrew = QStringLiteral(
    "אתמול בערב יצאנו לטיול ארוך לאורך הנהר. כבר היה חשוך, אבל הירח האיר כל כך חזק שראינו כל אבן.\n"
    "אחותי סיפרה על הספר שהיא קוראת עכשיו. אולי מחר נלך עוד יותר רחוק, עד הטחנה הישנה שליד היער.\n");

const QString arabic = QStringLiteral(
    "خرجنا مساء أمس في نزهة طويلة على ضفة النهر. كان الظلام قد حل، لكن القمر كان ساطعا حتى إننا رأينا "
    "كل حجر.\n"
    "حدثتني أختي عن الكتاب الذي تقرؤه الآن. ربما نذهب غدا إلى مكان أبعد، حتى الطاحونة القديمة قرب الغابة.\n");

const QString hindi = QStringLiteral(
    "कल शाम हम नदी के किनारे देर तक टहलते रहे। अँधेरा हो चुका था, पर चाँद इतना चमक रहा था कि हर पत्थर दिखता था।\n"
    "मेरी बहन उस किताब के बारे में बता रही थी जो वह पढ़ रही है। शायद कल हम और आगे पुरानी चक्की तक जाएँ।\n");

const QString japanese = QStringLiteral("昨日の夕方、私たちは川に沿って長い散歩をしました。もう暗くなっていま"
                                        "したが、月がとても明るくて、石の一つ一つまで"
                                        "見えました。\n"
                                        "妹はいま読んでいる本の話をしてくれました。明日はもっと遠く、森の下の"
                                        "古い水車小屋まで行くかもしれません。\n");

const QString simplifiedChinese = QStringLiteral(
    "昨天晚上，我们沿着河边散步，走了很久。天已经黑了，但是月亮很亮，每一块石头都看得清清楚楚。\n"
    "妹妹给我讲她正在读的那本书。也许明天我们会走得更远，一直走到树林下面的旧磨坊。\n");

const QString traditionalChinese = QStringLiteral(
    "昨天晚上，我們沿著河邊散步，走了很久。天已經黑了，但是月亮很亮，每一塊石頭都看得清清楚楚。\n"
    "妹妹給我講她正在讀的那本書。也許明天我們會走得更遠，一直走到樹林下面的舊磨坊。\n");

const QString korean = QStringLiteral(
    "어제 저녁에 우리는 강을 따라 오랫동안 산책을 했습니다. 이미 어두웠지만 달이 아주 밝아서 돌 하나하나까지 "
    "보였습니다.\n"
    "여동생은 지금 읽고 있는 책 이야기를 해 주었습니다. 내일은 더 멀리, 숲 아래의 오래된 물레방앗간까지 "
    "갈지도 "
    "모릅니다.\n");

QByteArray encodeText(const QString &text, const char *encoding)
{
    UErrorCode status = U_ZERO_ERROR;
    UConverter *converter = ucnv_open(encoding, &status);
    ucnv_setFromUCallBack(converter, UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    // Escape sequences included, no encoding takes more.
    QByteArray bytes(text.size() * 8 + 16, Qt::Uninitialized);
    const int32_t length = ucnv_fromUChars(converter, bytes.data(), static_cast<int32_t>(bytes.size()),
        text.utf16() ? reinterpret_cast<const UChar *>(text.utf16()) : nullptr,
        static_cast<int32_t>(text.size()), &status);
    ucnv_close(converter);
    if (U_FAILURE(status)) {
        ADD_FAILURE() << "cannot write the text in " << encoding << ": " << u_errorName(status);
        return {};
    }
    bytes.truncate(length);
    return bytes;
}

} // namespace SampleTexts
