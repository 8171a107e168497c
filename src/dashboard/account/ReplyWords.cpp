#include "ReplyWords.h"

#include <QHash>
#include <QStringList>

#include "Money.h"

namespace Dashboard
{

namespace
{

/*
 * The words with a certain meaning, separated by "|". A word of the reply matches if it starts with
 * one of these words, so that inflected forms also match. If a word ends with "$", only the
 * complete word matches.
 */
struct Words {
    Word meaning;
    const char *list;
};

const Words WORDS[] = {
    {Word::Balance,
     "balance|bal$|airtime|credit$|main account|main acc|main$|account$|acct$|a/c$|funds$|"
     "guthaben|kontostand|prepaidkonto|"
     "saldo|credito$|cuenta principal|"
     "solde|credit de communication|compte principal|"
     "cartao$|"
     "баланс|остаток|на счете|на счету|на вашем счете|вашем счету|вашем счете|лицевой "
     "счет|основной счет|"
     "رصيد|حسابك|الحساب الرئيسي|"
     "余额|餘額|结余|話費|话费余额|账户余额|"
     "bakiye|stan konta|zustatek|vas kredit|kredit je|kredit cini|stav "
     "kreditu|zostatok|egyenleg|баланса|наличност|салдо|"
     "stanje|υπολοιπο|beltegoed|tegoed|kontojaak|atlikums|likutis|pulsa|baki$|so du|tk chinh|"
     "tkg$|tai khoan goc|ยอดเงิน|คงเหลือ|शेष राशि|बैलेंस|بیلنس|موجودی|salio|load balance|balans|"
     "bakiyeniz|теңгерим|теңгерім|залишок|на рахунку|рахунок|ბალანს|մնացորդ|יתרה|残高|잔액|"
     "ব্যালেন্স|ஊதியம்|credit disponibil|sold$|soldul"},
    {Word::Have,
     "you have|you've|left$|remaining|available|sie haben|verfugbar|verbleib|ubrig|te quedan|"
     "tienes|dispones|usted tiene|disponible|il vous reste|vous avez|disposez|tem$|voce tem|"
     "restam|disponivel|у вас|доступно|средств|لديك|متبقي|متاح|剩余|可用|hai$|ha a disposizione|"
     "masz|mate$|du har|u heeft"},
    {Word::Link,
     "your$|my$|the$|it$|will$|number$|msisdn$|numero$|nummer$|номер$|di$|current|new$|is$|are$|of$"
     "|now$|actual|prepaid$|dear$|customer$|subscriber$|hi$|"
     "hello$|on$|at$|as$|has$|a$|you$|have$|still$|date$|and$|time$|in$|phone$|after$|"
     "ihr$|ihre$|ihrem$|dein|mein|aktuell|neues$|neue$|neuer$|betragt$|betraegt$|ist$|sind$|lautet$"
     "|"
     "noch$|derzeit|moment|stand$|vom$|am$|und$|uhr$|das$|der$|die$|kunde|lieber$|haben$|sie$|du$|"
     "hast$|ein$|einen$|von$|auf$|ihrem$|zum$|gueltig|"
     "su$|tu$|mi$|el$|nuevo$|principal$|es$|de$|la$|cuenta$|estimado|cliente$|usted$|y$|en$|con$|"
     "saldo es|"
     "votre$|ton$|mon$|le$|est$|actuel|nouveau$|cher$|client$|au$|et$|du$|s'eleve$|compte$|vous$|"
     "o$|seu$|sua$|teu$|atual$|novo$|e$|do$|da$|voce$|caro$|em$|conta$|credito$|"
     "ваш$|ваша$|ваше$|вашем$|на$|текущ|основно|новыи$|составля|равен$|счет|лицев|уважаем|абонент$|"
     "клиент$|и$|у$|вас$|сеичас|счете$|счету$|рубле|"
     "هو$|هي$|الحالي|الجديد|الرئيسي|عزيز|العميل|المشترك|يبلغ|في$|و$|الاساسي|هذا|لغاية|الى|"
     "您|的|当前|目前|账户|帐户|主|为|是|有|还|尊敬|客户|用户|现|话费|本机|我|新|号码|至|"
     "il$|tuo$|residuo$|stan$|konta$|vas$|vase$|je$|az$|on$|dumneavoastra$|este$|вашата$|е$|σας$|"
     "ειναι$|το$|uw$|ditt$|din$|anda$|lako$|ni$|cua$|ban$|आपका|ह|آپ|کا|ہے|شما|است|です|は$|は|은|"
     "는|이|입니다|"
     "שלך|היא|আপনার|na$|racunu$|wynosi$|cini$|sizning|vasz$|twoje$|to$|att$|ringa$|for$|du$|har$|"
     "zum$|ca$|bis$"},
    {Word::Data,
     "data$|internet$|volume$|volumen|datenvolumen|daten|highspeed|mobile$|datos$|megas$|navegar$|"
     "donnees$|internet|dados$|navegacao$|трафик|интернет|пакет|بيانات|انترنت|流量|上网|套餐|"
     "balance$|"
     "pack$|bundle$|gprs$"},
    {Word::NotBalance,
     "bonus|promo|gift|free$|added|credited|hinzugefugt|gutgeschrieben|abonad|acreditad|anadid|"
     "ajoute|"
     "credite$|adicionad|creditad|начислен|اضاف|增加|到账|price|cost|fee$|fees$|charge|deduct|"
     "minimum|maximum|min.|max.|"
     "topped|top up|top-up|topup|recharg|loan|advance|debt|owe$|owed|borrow|emergency|used$|"
     "spent|tariff|limit|reserved|blocked|bill$|bills|due$|invoice|payment|paid$|rent$|"
     "subscription|monthly|package|packages|pack$|packs|bundle|plan$|plans|reward|points|cashback|"
     "discount|voucher|refund|transfer|less than|more than|below|above|at least|under$|over$|"
     "up to|insufficient|not enough|not sufficient|required|needed|need$|expired|previous|before|"
     "old$|was$|last$|reserve|overdraft|loyalty|friend|deposit|penalty|tax$|vat$|about$|approx|"
     "nearly|almost|estimated|pending|promotional|reach|unless|per call|call cost|dedicated|"
     "preis|kosten|gebuhr|rechnung|aufgeladen|aufladung|abgezogen|abgebucht|schuld|kredit von|"
     "vorschuss|verbraucht|mindest|hochstens|unter$|weniger|geschenk|gutschrift|gutschein|"
     "verfallen|abgelaufen|letzte|vorher|bisher|betrag$|tarif|paket|fallig|grundgebuhr|monatlich|"
     "nicht ausreich|reicht nicht|zu niedrig|gesperrt|reserviert|rabatt|aktionsguthaben|"
     "regalo|gratis|precio|coste|costo|tarifa|recarga|recargaste|recargo|anticipo|prestamo|"
     "prestado|deuda|debe$|debes|adeuda|consumido|consumo|gastado|factura|cuota|paquete|"
     "insuficiente|menor|menos|mayor|minimo|maximo|caducado|vencido|anterior|ultima|ultimo|"
     "promocion|descuento|bono$|bonos|reembolso|abono|necesita|"
     "cadeau|gratuit|prix|cout$|coute|frais|recharge|avance|dette|doit$|devez|consomme|depense|"
     "facture|forfait|abonnement|insuffisant|inferieur|moins|expire le credit|expiree|"
     "precedent|ancien|dernier|derniere|promotionnel|remise|offert|pret$|emprunt|mensuel|sos|"
     "preco|custo|taxa|emprestimo|adiantamento|divida|deve$|gasto|fatura|pacote|plano|"
     "promocional|desconto|expirado|expirou|vencida|inferior|brinde|presente|necessario|"
     "бонус|подар|бесплат|цена|цене|стоит|стоимост|плата|списан|пополн|зачисл|обещанн|долг|"
     "задолж|кредитн|кредит |аванс|израсход|потрач|использ|счет на оплату|к оплате|тариф|пакет|"
     "лимит|меньше|менее|более|недостат|не хватает|минимал|максимал|истек |истекла|истекло|"
     "истекли|предыдущ|прошл|последн|штраф|абонент|акци|скидк|кэшбэк|кешбек|возврат|перевод|"
     "порог|блокир|"
     "мінімал|вартість|поповн|борг|подарун|ціна|списано|"
     "مكافا|هدية|مجان|بونص|اضافي|سعر|تكلفة|بتكلفة|رسوم|شحن|سلف|قرض|دين |مستحق|خصم|استهل|فاتور|"
     "باقة|باقات|عرض|عروض|غير كاف|لا يكفي|اقل من|اكثر من|حد |منته|انتهت|السابق|اخر |مكالمة|تحويل|"
     "اشتراك|ضريب|ترويج|"
     "赠送|赠款|奖励|优惠|价格|资费|费用|月租|月费|充值|缴费|预支|欠费|透支|已用|消费|账单|套餐|"
     "不足|"
     "低于|少于|最低|过期|上次|上月|扣费|扣除|红包|积分|赠|冻结|专款|实时话费|每月|"
     "hediye|ucret|fatura|borc|kampanya|paketi|prezent|cena|oplata|doladowa|dlug|bonusov|"
     "dobit|dluh|poplatek|dij|tartozas|ajandek|feltolt|gratuit|datorie|factur|reincarc|цена|"
     "такса|дълг|дуг$|dug$|racun$|dopun|τιμη|χρεος|δωρο|prijs|schuld|opgewaardeerd|pris$|skuld|"
     "hinta|velka|volg|hind|paradas|skola|biaya|harga|hutang|tagihan|harga|khuyen mai|km[0-9]|gia$|"
     "cuoc$|ban no|โบนัส|ราคา|ค่าบริการ|बोनस|शुल्क|बिल|बकाया|مفت|قرضہ|deni|mkopo|ofa$|qarz|нархи|"
     "бағасы|қарыз|borclu|bonusun|ボーナス|料金|보너스|요금|בונוס|חוב|מחיר|bonificacion|prezzo|"
     "ricarica|debito|bolletta|scaduto|omaggio|sms$|internet$|data$|gprs|saldo de dados|call$"},
    {Word::NotBalanceYet,
     "will be|would be|should be|wird |ware |sera|seria|будет|станет|سيكون|سيصبح|将为|if$|wenn$|"
     "falls|si$|se$|если|اذا|如果|若|add$|pay$|buy$|get$|send$|earn|win$|won$|save|donate|from$|"
     "reply|press|dial|kaufen|zahlen|zahlst|erhalten|bekommen|drucken|wahle|compra|paga|recibe|"
     "recibiste|gana|achetez|payez|recevez|recu|gagne|compre|pague|ganhe|receba|recebeu|купить|"
     "hasta$|"
     "оплат|получ|внесите|выигр|اشتر|ادفع|اربح|احصل|购买|支付|获得|办理|received|to$|offer|"
     "without|ohne|sin$|sans|sem$|без$|data|internet|sms|daten|datos|donnees|dados|minutes|"
     "voice|night|weekend|интернет|минут|بيانات|انترنت|流量|短信|语音"},
    {Word::Price, "for$|only$|just$|at$|fur$|nur$|por$|solo$|pour$|seulement|so$|apenas|за$|всего|"
                  "только|от$|ab$|a$|desde|des$|per$|a partir de|مقابل|ب$|فقط|仅需|只需|仅|@$|за "
                  "всего|od$|za$|voor$|icin$"},
    {Word::Per, "per$|pro$|par$|por$|/|a minute|a month|a day|an hour|each|every|al mes|al dia|"
                "par mois|ao mes|por mes|в месяц|в сутки|в день|в час|за мин|за мб|за 1|за смс|"
                "عن كل|لكل|للدقيقة|شهريا|يوميا|每|/月|每月|起$|monat|je$|pro "},
    {Word::Subunit, "cent$|cents|ct$|cts$|c$|centavo|centime|centimos|kop$|kopeks|kopecks|коп|"
                    "тиын|тийин|piast|fils|halal|paise|paisa|قرش|قروش|هلل|فلس|سنت|分|分钱|"
                    "haler|grosz|gr$|bani$|stotin|стотин|kurus|sen$|pence|p$|santim|cts."},
    {Word::Validity,
     "valid|expir|until|till|gultig|lauft|bis$|ablauf|vence|vigen|hasta|caduc|valido|vencim|"
     "valable|jusqu|validite|validade|ate$|действ|до$|истек|срок|активен|активн|صالح|صلاحي|حتى|"
     "تنته|ينته|有效期|有效|到期|截止|截至|失效|gecerli|son "
     "kullan|wazn|waznosc|platn|ervenyes|valabil|"
     "валид|važi|vazi|do$|ισχυει|geldig|giltig|gyldig|voimassa|kehtiv|deriga|galioja|masa aktif|"
     "berlaku|tempoh|han su dung|hsd$|วันหมดอายุ|ใช้ได้ถึง|वैध|مدت|muda|имеет "
     "силу|діисн|дійсн|hingga|sah$|tempoh|abgelaufen|"
     "scad|valida|期限|만료|유효|בתוקף|disponible hasta|tot$|t\\.e$|exp$"},
    {Word::Account,
     "balance|bal$|account|credit|airtime|number|sim$|line$|card|service|main|guthaben|konto|"
     "karte|rufnummer|nummer|saldo|cuenta|linea|tarjeta|chip$|numero|solde|compte|ligne|carte|"
     "conta$|linha|cartao|баланс|счет|номер|сим|карт|лини|обслуж|رصيد|حساب|رقم|خط|شريحة|الخدمة|"
     "余额|账户|帐户|号码|卡|服务|话费|credito|hat$|bakiye"},
    {Word::Extra,
     "bonus|promo|gift|pack|bundle|plan$|data|internet|sms$|offer|minutes|mb$|gb$|loan|advance|"
     "option|roaming|subscription|voucher|free|paket|option|daten|geschenk|aktion|flat|vorschuss|"
     "bono|paquete|datos|regalo|promocion|prestamo|forfait|donnees|cadeau|avance|pass$|pacote|"
     "plano|dados|brinde|бонус|пакет|интернет|акци|трафик|подар|минут|опци|обещанн|باقة|باقات|"
     "انترنت|بيانات|هدية|مكاف|عرض|سلف|套餐|流量|优惠|赠|活动|奖励|last|letzt|ultim|dernier|последн|"
     "اخر|上次|top up|top-up|topped|aufgeladen|aufladung|recarga|recharge|пополн|شحن|充值|call$|"
     "anruf|llamada|appel|since|seit|desde|depuis|with effect|invoice|rechnung|"
     "factura|facture|fatura|next|nachste|proxim|prochain|birth|born|registered|activated on|"
     "aktiviert am|activad|active le|ativad|подключен|активирован|التفعيل|激活|开通|contract|"
     "от$|from$|von$|del$|du$|ofert|ракам|prolong|verlanger|tarif|тариф|night|weekend"},
    {Word::Number,
     "your number|my number|own number|msisdn|mobile number|phone number|number is|your mobile|"
     "your line|this number|rufnummer|ihre nummer|deine "
     "nummer|handynummer|telefonnummer|mobilnummer|"
     "su numero|tu numero|numero es|mi numero|linea es|votre numero|numero est|numero de telephone|"
     "ton numero|seu numero|numero e$|meu numero|o numero|ваш номер|мой номер|номер телефона|"
     "ваш телефон|абонентский номер|رقمك|رقم هاتفك|رقم الهاتف|رقم الجوال|رقم جوالك|رقم "
     "خطك|本机号码|"
     "您的号码|手机号|手机号码|号码是|numaraniz|twoj numer|vase cislo|telefonszam|numarul|номерът|"
     "vas broj|ο αριθμος|uw nummer|ditt nummer|nomor anda|so thue bao|so cua|หมายเลข|nambari yako|"
     "il tuo numero|numer$|number"},
    {Word::Hotline,
     "call |dial|hotline|helpline|customer|care$|support|contact|service number|whatsapp|sms to|"
     "from$|sent by|friend|transfer|recipient|beneficiary|other|anruf|kundenservice|hilfe|wahle|"
     "empfanger|llame|llama|atencion|ayuda|contacto|appel|assistance|service client|ligue|"
     "atendimento|suporte|звон|поддерж|справ|горяч|اتصل|خدمة|للاستفسار|الدعم|客服|热线|拨打|联系|"
     "咨询|forward|weiterleit|desvi|renvoi|переадрес|تحويل|转移|voice ?mail|mailbox|tried "
     "to|reach"},
    {Word::Left,
     "left|remain|available|balance|unused|you have|rest|verfugbar|ubrig|verbleib|noch$|guthaben|"
     "quedan|queda$|restan|disponib|tienes|tiene$|saldo|reste|restant|disponivel|restam|resta|"
     "tem$|остал|остат|доступ|у вас|متبق|باقي|المتاح|رصيد|لديك|剩余|剩|余额|可用|kalan|pozosta|"
     "zbyva|zostava|maradt|ramas|остава|preostalo|υπολοιπ|over$|kvar|jaljella|jaak|sisa|con lai|"
     "คงเหลือ|शेष|残り|잔여"},
    {Word::Used,
     "used|spent|consum|verbraucht|genutzt|usado|usaste|utilis|gastad|использ|израсход|потрач|"
     "استخدم|استهل|مستهلك|已用|已使用|使用了|kullan|zuzy|wykorzyst|terpakai|pemakaian|lost|expired|"
     "abgelaufen|caducad|expire[es]?$|истекл|انتهت|过期|exceed"},
    {Word::Total,
     "total|size|allowance|included|gesamt|insgesamt|inklusiv|del total|incluid|au total|inclus|"
     "всего|общий|объем|اجمالي|الاجمالي|حجم|总|共|套餐内|toplam"},
    {Word::Of, "of$|of total|out of|from|/|von$|von insgesamt|de$|de un total de|de um total de|"
               "del total de|sur$|sur un total de|из$|من$|من اصل|共|z$|dari$|di$"},
    {Word::Offer,
     "buy|get$|for only|offer|price|per$|bonus|promo|night|social|whatsapp|facebook|youtube|"
     "weekend|off-peak|subscribe|activate|add-on|free|gift|kaufen|buchen|nacht|geschenk|preis|"
     "aktion|compra|contrata|precio|noche|regalo|gratis|achetez|souscri|nuit|prix|cadeau|compre|"
     "contrate|noite|preco|купить|подключ|ноч|цена|подар|бонус|اشتر|سعر|ليل|مجان|هدية|اشترك|购买|"
     "办理|夜间|赠|价格|定向|speed|slow|drossel|roaming|share|transfer|from$|up to|less than|below|"
     "under$|weniger|menos|moins|менее|меньше|اقل|不足|低于|only$|reply|press|minimum|if$|when$|"
     "after$|nach$|hotspot|streaming|video|expire in|yesterday|gestern|last|advance|loan|valid "
     "for|will be|every|daily|monthly|tomorrow"},
};

struct Stem {
    QString text;
    bool isWhole = false;    // only a complete word matches
    bool isAnywhere = false; // also matches inside a word; see isUnseparated()
};

/// Returns true if the script does not separate words with spaces. Also returns true for the Arabic
/// and Hebrew scripts, which join articles and prepositions to words.
bool isUnseparated(const QString &text)
{
    switch (text.isEmpty() ? QChar::Script_Common : text.at(0).script()) {
    case QChar::Script_Arabic:
    case QChar::Script_Hebrew:
    case QChar::Script_Han:
    case QChar::Script_Thai:
    case QChar::Script_Hangul:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
        return true;
    default:
        return false;
    }
}

Stem stemOf(const QString &word)
{
    Stem stem;
    stem.text = plainForm(word).toLower();
    stem.isWhole = stem.text.endsWith(QLatin1Char('$'));
    if (stem.isWhole)
        stem.text.chop(1);
    const bool isHan = !stem.text.isEmpty() && stem.text.at(0).script() == QChar::Script_Han;
    stem.isAnywhere = isUnseparated(stem.text) && (isHan || stem.text.length() > 1);
    return stem;
}

QList<Stem> readStems(Word meaning)
{
    QList<Stem> stems;
    for (const Words &words : WORDS) {
        if (words.meaning != meaning)
            continue;
        for (const QString &word : QString::fromUtf8(words.list).split(QLatin1Char('|')))
            stems << stemOf(word);
    }
    return stems;
}

const QList<Stem> &stemsOf(Word meaning)
{
    static QHash<int, QList<Stem>> known;
    auto found = known.find(int(meaning));
    if (found == known.end())
        found = known.insert(int(meaning), readStems(meaning));
    return *found;
}

bool isLetterAt(const QString &text, int position)
{
    return position >= 0 && position < text.length() && text.at(position).isLetter();
}

bool matches(const QString &folded, int position, const Stem &stem)
{
    const int end = position + stem.text.length();
    if (stem.isAnywhere)
        return true;
    const bool startsWord = !stem.text.at(0).isLetter() || !isLetterAt(folded, position - 1);
    return startsWord && (!stem.isWhole || !isLetterAt(folded, end));
}

bool holdsStem(const QString &folded, const Stem &stem)
{
    for (int at = folded.indexOf(stem.text); at >= 0; at = folded.indexOf(stem.text, at + 1)) {
        if (matches(folded, at, stem))
            return true;
    }
    return false;
}

bool isDropped(QChar character)
{
    switch (character.category()) {
    case QChar::Mark_NonSpacing:
    case QChar::Other_Format: // for example, direction characters and joiners
        return true;
    default:
        return character == QChar(0x0640); // the tatweel, which elongates Arabic words
    }
}

/// Maps variants of a character to a single one. For example, full-width characters are mapped to
/// ASCII, and the various spaces that separate groups of digits are mapped to one of them.
QChar unified(QChar character)
{
    const ushort code = character.unicode();
    if (code > 0xFF00 && code < 0xFF5F)
        return QChar(code - 0xFEE0);
    switch (code) {
    case 0x2007:
    case 0x2009:
    case 0x202F:
        return QChar(QChar::Nbsp);
    case 0x066B:
        return QLatin1Char('.');
    case 0x066C:
    case 0x2019:
        return QLatin1Char('\'');
    case 0xFFE5:
        return QChar(0x00A5);
    case 0x06CC: // Persian forms of Arabic letters
        return QChar(0x064A);
    case 0x06A9:
        return QChar(0x0643);
    case 0x3000:
    case '\t':
        return QLatin1Char(' ');
    case '\r':
        return QLatin1Char('\n');
    default:
        return character;
    }
}

} // namespace

QString plainForm(const QString &text)
{
    QString result;
    for (const QChar character : text.normalized(QString::NormalizationForm_D)) {
        if (!isDropped(character))
            result += unified(character);
    }
    return withLatinDigits(result);
}

bool holdsWord(const QString &folded, Word meaning)
{
    for (const Stem &stem : stemsOf(meaning)) {
        if (holdsStem(folded, stem))
            return true;
    }
    return false;
}

/// Returns true if the script of the character does not separate words with spaces.
static bool isWrittenWithoutBlanks(QChar character)
{
    const QChar::Script script = character.script();
    return script == QChar::Script_Han || script == QChar::Script_Hiragana ||
           script == QChar::Script_Katakana || script == QChar::Script_Thai;
}

/// Returns the end of the word at this position if the word has one of the meanings. Otherwise,
/// returns -1.
static int endOfKnownWord(const QString &folded, int position, std::initializer_list<Word> meanings)
{
    int length = 0;
    for (const Word meaning : meanings)
        length = qMax(length, wordLengthAt(folded, position, meaning));
    if (length == 0)
        return -1;
    int end = position + length;
    if (isWrittenWithoutBlanks(folded.at(position)))
        return end;
    while (end < folded.length() && folded.at(end).isLetter())
        ++end;
    return end;
}

/// Returns the end of the Arabic or Hebrew word at this position if, apart from prefixes, the word
/// has one of the meanings. Otherwise, returns -1.
static int endOfPrefixedWord(const QString &folded, int position,
                             std::initializer_list<Word> meanings)
{
    const QChar::Script script = folded.at(position).script();
    if (script != QChar::Script_Arabic && script != QChar::Script_Hebrew)
        return -1;
    int end = position;
    while (end < folded.length() && folded.at(end).isLetter())
        ++end;
    for (const Word meaning : meanings) {
        if (holdsWord(folded.mid(position, end - position), meaning))
            return end;
    }
    return -1;
}

bool hasOnlyWords(const QString &folded, std::initializer_list<Word> meanings)
{
    for (int i = 0; i < folded.length();) {
        if (!folded.at(i).isLetter()) {
            ++i;
            continue;
        }
        int end = endOfKnownWord(folded, i, meanings);
        if (end < 0)
            end = endOfPrefixedWord(folded, i, meanings);
        if (end < 0)
            return false;
        i = end;
    }
    return true;
}

bool endsWithWord(const QString &folded, Word meaning)
{
    const QString end = folded.trimmed();
    for (const Stem &stem : stemsOf(meaning)) {
        if (end.endsWith(stem.text) && matches(end, end.length() - stem.text.length(), stem))
            return true;
    }
    return false;
}

bool beginsWithWord(const QString &folded, Word meaning)
{
    const QString start = folded.trimmed();
    return wordLengthAt(start, 0, meaning) > 0;
}

int wordLengthAt(const QString &folded, int position, Word meaning)
{
    int longest = 0;
    for (const Stem &stem : stemsOf(meaning)) {
        const QString part = folded.mid(position, stem.text.length());
        if (part == stem.text && matches(folded, position, stem))
            longest = qMax(longest, int(stem.text.length()));
    }
    return longest;
}

} // namespace Dashboard
