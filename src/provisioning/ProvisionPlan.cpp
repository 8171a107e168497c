#include "ProvisionPlan.h"

#include <QSet>

#include "UssdCode.h"
#include "UssdTemplate.h"

using namespace Formats;

namespace Provisioning
{

namespace
{

// The index of the first payment button if the general window has all eleven buttons.
const int FIRST_PAYMENT_SLOT = 9;
const int PAYMENT_BUTTONS = 2; // the last two buttons are payment buttons

/** A kind of code, and the text keys of the names and descriptions for such codes. */
struct Kind {
    const char *name;
    const char *textKey;
    const char *descriptionKey;
};

const Kind BALANCE = {"Balance", "IDS_PROFILE_BALANCE", "IDS_PROFILE_BALANCE_DESC"};
const Kind OWN_NUMBER = {"My number", "IDS_PROFILE_OWN_NUMBER", "IDS_PROFILE_OWN_NUMBER_DESC"};
const Kind TOP_UP = {"Top up", "IDS_PROFILE_TOP_UP", "IDS_PROFILE_TOP_UP_DESC"};

/// Returns a placeholder, which only occupies the place of a payment button.
USSDProfile placeholder()
{
    USSDProfile profile;
    profile.name = placeholderName();
    profile.readonly = true;
    profile.showButton = true;
    return profile;
}

/// Returns at most `count` profiles, starting at index `first`, or all of them if `count` is -1.
/// `hasButton` specifies whether the returned profiles have buttons.
QList<USSDProfile> taken(const QList<USSDProfile> &profiles, int first, int count, bool hasButton)
{
    QList<USSDProfile> result = profiles.mid(first, count);
    for (int i = 0; i < result.count(); ++i)
        result[i].showButton = hasButton;
    return result;
}

bool isMessageNumber(const QString &text)
{
    for (int i = text.startsWith(QLatin1Char('+')) ? 1 : 0; i < text.length(); ++i) {
        if (text.at(i) < QLatin1Char('0') || text.at(i) > QLatin1Char('9'))
            return false;
    }
    return text != QLatin1String("+");
}

/** Builds a plan from an operator's codes. */
class Planner
{
public:
    Planner(const Provider &provider, const QString &network);
    ProvisionPlan plan();

private:
    QString take(const QList<ProviderCode> &codes, const Kind &kind, bool withInput);
    QString takeUssd(const ProviderCode &code, const Kind &kind, bool withInput);
    void takeResponse(const ProviderCode &code, const Kind &kind);
    void takeMessage(const ProviderCode &code, const Kind &kind);
    void addProfile(const QString &code, const Kind &kind);
    void nameApart(const Kind &kind);
    void note(const ProviderCode &code, const QString &what);
    void placeButtons();
    void placePrefixes(const QString &network);

    const Provider &m_provider;
    ProvisionPlan m_plan;
    QSet<QString> m_codes; // all codes in m_plan.profiles
};

Planner::Planner(const Provider &provider, const QString &network) : m_provider(provider)
{
    m_plan.country = provider.country;
    m_plan.provider = provider.name();
    m_plan.network = network;
}

ProvisionPlan Planner::plan()
{
    m_plan.balance = take(m_provider.balance, BALANCE, false);
    m_plan.ownNumber = take(m_provider.ownNumber, OWN_NUMBER, false);
    m_plan.topUp = take(m_provider.topUp, TOP_UP, true);
    placeButtons();
    placePrefixes(m_plan.network);
    return m_plan;
}

/// Adds all codes to the plan. Returns the first code that is suitable for the account window: one
/// with a placeholder for the user's input if `withInput` is true, otherwise one without.
QString Planner::take(const QList<ProviderCode> &codes, const Kind &kind, bool withInput)
{
    QString first;
    for (int i = 0; i < codes.count(); ++i) {
        const ProviderCode &code = codes.at(i);
        if (code.way == ProviderCode::Sms)
            takeMessage(code, kind);
        else if (code.way == ProviderCode::UssdResponse)
            takeResponse(code, kind);
        else if (code.way == ProviderCode::Dtmf)
            note(code, QLatin1String("needs a call to ") + code.code);
        else if (first.isEmpty())
            first = takeUssd(code, kind, withInput);
        else
            takeUssd(code, kind, withInput);
    }
    nameApart(kind);
    return first;
}

/// Adds a code. Returns the code if it is suitable for the account window, otherwise an empty
/// string.
QString Planner::takeUssd(const ProviderCode &code, const Kind &kind, bool withInput)
{
    const UssdTemplate ussd = ussdTemplate(code);
    if (!ussd.problem.isEmpty()) {
        note(code, ussd.problem);
        return QString();
    }
    addProfile(ussd.code, kind);
    return ussd.takesInput == withInput ? ussd.code : QString();
}

/// Adds a code whose reply is a menu. The code is not suitable for the account window, because only
/// the general window supports menus. Adds a note instead if the code can only be sent as an
/// answer.
void Planner::takeResponse(const ProviderCode &code, const Kind &kind)
{
    if (isUssdCode(code.code) && code.code.length() <= LONGEST_COMMAND)
        addProfile(code.code, kind);
    else
        note(code, QString::fromLatin1("the menu wants the answer \"%1\"").arg(code.code));
}

void Planner::takeMessage(const ProviderCode &code, const Kind &kind)
{
    if (code.smsText.isEmpty())
        return note(code, QString::fromLatin1("the message to %1 has no text").arg(code.code));
    if (!isMessageNumber(code.code) || code.smsText.contains(INPUT_PLACEHOLDER))
        return note(code, QString::fromLatin1("a message \"%1\" to \"%2\" cannot be sent")
                              .arg(code.smsText, code.code));
    PlannedMessage message;
    message.textKey = QLatin1String(kind.textKey);
    message.explanation = code.smsText + QString::fromUtf8(" \xe2\x86\x92 ") +
                          code.code; // U+2192, an arrow, which is understood in every language
    message.text = code.smsText;
    message.number = code.code;
    m_plan.messages << message;
}

void Planner::addProfile(const QString &code, const Kind &kind)
{
    if (m_codes.contains(code))
        return;
    m_codes.insert(code);
    USSDProfile profile;
    profile.name = QLatin1String(kind.name);
    profile.value = code;
    profile.langID = QLatin1String(kind.textKey);
    profile.desLangID = QLatin1String(kind.descriptionKey);
    m_plan.profiles << profile;
}

/// Makes the names of profiles and messages of the same kind unique.
void Planner::nameApart(const Kind &kind)
{
    const QString key = QLatin1String(kind.textKey);
    int count = 0;
    for (int i = 0; i < m_plan.messages.count(); ++i)
        count += m_plan.messages.at(i).textKey == key ? 1 : 0;
    for (int i = 0; i < m_plan.messages.count(); ++i) {
        PlannedMessage &message = m_plan.messages[i];
        if (count > 1 && message.textKey == key)
            message.textKey = message.explanation;
    }
    bool isFirst = true;
    for (int i = 0; i < m_plan.profiles.count(); ++i) {
        USSDProfile &profile = m_plan.profiles[i];
        if (profile.langID != key)
            continue;
        if (!isFirst) { // the description still states the purpose
            profile.name = profile.value;
            profile.langID.clear();
        }
        isFirst = false;
    }
}

void Planner::note(const ProviderCode &code, const QString &what)
{
    m_plan.notes << QString::fromLatin1("line %1: ").arg(code.line) + what;
}

/// Assigns the profiles to buttons. The last two buttons of the general window require a number.
/// Codes with input therefore come last, and placeholders fill the two places if necessary. As a
/// result, the buttons of codes without input are always ordinary buttons.
void Planner::placeButtons()
{
    QList<USSDProfile> plain;
    QList<USSDProfile> paying;
    for (int i = 0; i < m_plan.profiles.count(); ++i) {
        const USSDProfile &profile = m_plan.profiles.at(i);
        (profile.value.contains(INPUT_PLACEHOLDER) ? paying : plain) << profile;
    }
    QList<USSDProfile> placeholders;
    while (!plain.isEmpty() && placeholders.count() + paying.count() < PAYMENT_BUTTONS)
        placeholders << placeholder();
    // Only eleven profiles can have buttons: nine codes without input and two codes with input.
    m_plan.profiles = taken(plain, 0, FIRST_PAYMENT_SLOT, true) + placeholders +
                      taken(paying, 0, PAYMENT_BUTTONS, true) +
                      taken(plain, FIRST_PAYMENT_SLOT, -1, false) +
                      taken(paying, PAYMENT_BUTTONS, -1, false);
}

void Planner::placePrefixes(const QString &network)
{
    m_plan.imsiPrefixes = m_provider.networks;
    if (!network.isEmpty() && !m_plan.imsiPrefixes.contains(network))
        m_plan.imsiPrefixes << network;
    m_plan.imsiPrefixes.sort();
}

} // namespace

ProvisionPlan provisionPlan(const Provider &provider, const QString &network)
{
    return Planner(provider, network).plan();
}

} // namespace Provisioning
