// SPDX-License-Identifier: MIT
#include "tests/platform/text_layout/AgreementTexts.h"

const std::vector<AgreementText> &agreementTexts()
{
    static const QString helvetica = QStringLiteral("Nimbus Sans");
    static const QString helveticaFile = QStringLiteral("NimbusSans-Regular.otf");
    static const QString times = QStringLiteral("Nimbus Roman");
    static const QString timesFile = QStringLiteral("NimbusRoman-Regular.otf");
    static const QString dejaVu = QStringLiteral("DejaVu Sans");
    static const QString dejaVuFile = QStringLiteral("DejaVuSans.ttf");
    static const QString cjkFile = QStringLiteral("NotoSansCJK-Regular.ttc");
    static const std::vector<AgreementText> texts{
        {"English", helvetica, helveticaFile,
            QStringLiteral(
                "At the mouth of the river stood a small yellow house whose windows had not been opened for "
                "years. “Who lives there?” asked the boy; his aunt, who knew everybody, shrugged. Every "
                "Tuesday, at 7.30 sharp, someone (nobody could say who) lit a lamp in the upper room, and "
                "every Wednesday morning there were 12 fresh eggs on the step. AVATAR, To, Ty and Wa are "
                "pairs that kerning pulls together. It cost $3.50, or 40% of what they had.")},
        {"German", times, timesFile,
            QStringLiteral(
                "Über den Dächern der alten Stadt hing noch der Nebel, als die Straßenbahn mit "
                "großem Getöse um die Ecke bog. „Fahren wir heute zum Donaudampfschifffahrtsmuseum?“, "
                "fragte Jörg. Seine Schwester überlegte kurz, zählte ihr Geld und schüttelte den Kopf: "
                "Für zwei Eintrittskarten à 14,50 € reichte es nicht. Also blieben sie auf der "
                "Eisenbahnbrücke stehen und schauten den Rangierlokomotiven zu.")},
        {"Arabic", QStringLiteral("Noto Naskh Arabic"), QStringLiteral("NotoNaskhArabic-Regular.ttf"),
            QStringLiteral(
                "كان الصياد العجوز يجلس كل صباح قرب الميناء، ينظر إلى القوارب وهي تبتعد عن "
                "الشاطئ. لم يكن يتكلم كثيرا، لكنه كان يعرف أسماء الرياح كلها. وفي يوم من أيام "
                "الشتاء جاءت إليه فتاة صغيرة وسألته: أين تنام الأسماك في الليل؟ فابتسم وأشار "
                "إلى الماء، ثم حكى لها حكاية طويلة عن مدينة من المرجان لا يدخلها إلا من نسي اسمه.")},
        {"Hebrew", dejaVu, dejaVuFile,
            QStringLiteral("בקצה הרחוב עמדה חנות ספרים קטנה, ובחלון הראווה שלה ישן חתול אפור. בעל החנות "
                           "לא מכר כמעט דבר, אבל כל ערב היה קורא בקול סיפור אחד לילדי השכונה. יום אחד "
                           "נשארה הדלת סגורה. הילדים חיכו שעה, ואחר כך עוד שעה, עד שיצאה השכנה ואמרה: "
                           "הוא נסע אל הים, ויחזור עם סיפורים חדשים.")},
        {"Hindi", QStringLiteral("Noto Sans Devanagari"), QStringLiteral("NotoSansDevanagari-Regular.ttf"),
            QStringLiteral("गाँव के बाहर एक पुराना बरगद था, जिसके नीचे हर शाम बच्चे इकट्ठा होते थे। दादी उन्हें "
                           "राजाओं और चिड़ियों की कहानियाँ सुनातीं, और कभी-कभी खुद ही हँसने लगतीं। एक दिन बारिश "
                           "इतनी तेज़ हुई कि रास्ते डूब गए, फिर भी सब बच्चे आए। उन्होंने कहा कि कहानी अधूरी नहीं "
                           "छोड़ी जा सकती। दादी ने दीपक जलाया और आगे सुनाना शुरू किया।")},
        {"Thai", QStringLiteral("Noto Sans Thai"), QStringLiteral("NotoSansThai-Regular.ttf"),
            QStringLiteral("เช้าวันนั้นฝนตกหนัก แต่แม่ค้ายังมาที่ตลาดเหมือนทุกวัน เด็กคนหนึ่งวิ่งมาซื้อขนม "
                           "แล้วถามว่าทำไมวันนี้ไม่มีกล้วย แม่ค้ายิ้มและตอบว่าลิงกินไปหมดแล้ว เด็กหัวเราะ "
                           "และสัญญาว่าพรุ่งนี้จะมาใหม่ ตอนเย็นฟ้าเปิดและมีรุ้งกินน้ำอยู่เหนือแม่น้ำ")},
        {"Chinese", QStringLiteral("Noto Sans CJK SC"), cjkFile,
            QStringLiteral(
                "山脚下有一座小桥，桥边住着一位修钟表的老人。他的屋子里挂满了钟，可是每一只钟的时间"
                "都不一样。有人问他：“为什么不把它们调准呢？”老人笑着回答：“每一只钟都记得自己最快乐"
                "的时刻。”从那以后，村里的孩子们常常来听钟声，一共有一百二十三只，谁也没有数错。")},
        {"Japanese", QStringLiteral("Noto Sans CJK JP"), cjkFile,
            QStringLiteral(
                "駅前の小さなパン屋では、毎朝五時になると明かりがつく。主人は無口だが、焼きたてのパンを"
                "買いに来る子どもたちには、いつも一つおまけをくれた。「どうして？」と聞くと、「匂いを"
                "運んでくれるからだよ」と笑う。ある日、町じゅうの人が店の前に並んだ。サンドイッチ・"
                "コンテストで一等をとったからである。")},
        {"emoji", dejaVu, dejaVuFile,
            QStringLiteral(
                "Good morning 😀 everyone 😃😄 today we have ☀ and perhaps ☔ later 😎. Bring 3 ☂ and a "
                "smile 😊😊😊! Those who win get ★★★★★, the others get ☕ and ♥. See you 😉 at noon ✈ or "
                "later 😴😴 if the train ✂ is late ☹.")},
        {"tabs", helvetica, helveticaFile,
            QStringLiteral(
                "Name\tTown\tAge\tRemarks\tNone\t\tTwo tabs\t\t\tthree tabs and then a longer stretch of "
                "words\tbefore the next\ttab, a\tb\tc\td\te\tf\tg\th\ti\tj\tk\tl\tm\tn\to\tp\tend")},
        {"long words", helvetica, helveticaFile,
            QStringLiteral(
                "Look: "
                "pneumonoultramicroscopicsilicovolcanoconiosisandthenalittlemoreofthesamekindofthingwithoutan"
                "y"
                "spaceuntiltheendofthiswordwhichmustbewiderthananycolumnthatthistestevertries and on. "
                "ThenAnotherOneFollowsThatIsNotQuiteAsLongButStillTooLongForTheNarrowerColumnsHere end.")},
        {"hyphens", helvetica, helveticaFile,
            QStringLiteral(
                "A well-known, state-of-the-art, once-in-a-lifetime offer—or so they said—from the "
                "mother-in-law of a jack-of-all-trades in Stratford-upon-Avon: a two-to-three-year-old "
                "merry-go-round, hand-me-down and all, for twenty-nine ninety-nine. Either/or, and/or, "
                "yes/no; non\u2011breaking\u2011hyphens\u2011stay\u2011together, and so do 3\u2013to\u20134 "
                "en-dashes–sometimes–break.")},
        {"two directions", dejaVu, dejaVuFile,
            QStringLiteral(
                "The word שלום means peace, and مرحبا is a greeting; in the year 1998 (תשנ״ח) both "
                "were painted on one wall: שלום עליכם next to السلام عليكم, with a red line between "
                "them that children drew.")},
    };
    return texts;
}
