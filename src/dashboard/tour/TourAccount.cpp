#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

#include "Change.h"
#include "IUSSD.h"
#include "plugin/GeneralWindow.h"
#include "TourGuide.h"
#include "TourParts.h"

namespace Dashboard
{

namespace
{

const char DIALOG[] = "USSDUIPlugin_Pre_PostPaid";
const char PIN[] = "1234567890123456";

const TourStop OPENING = {"opening", "just opened: balance and number are being fetched"};
const TourStop ANSWERED = {"answered", "all components in one window, with balance and number"};
const TourStop WAITING = {"waiting", "a top-up is on its way, to be answered in a box"};
const TourStop BOX = {"topped-up-box", "the reply to the top-up in a box"};
const TourStop NEW_BALANCE = {"new-balance", "the balance after the top-up"};
const TourStop WAITING_INSIDE = {"waiting-inside", "a top-up is on its way, to be answered inside"};
const TourStop INSIDE = {"topped-up-inside", "the reply to the top-up inside, and the new balance"};
const TourStop FAILED = {"failed", "the network refuses balance, number and top-up"};
const TourStop POSTPAID = {"answered", "the window of a contract: bill and number"};
const TourStop POSTPAID_ALL = {"all-in-one", "all components in the window of a contract"};

const TourChange REPLY_INSIDE[] = {
    {"<Prepaid>", "<ReturnStyle>1</ReturnStyle>", "<ReturnStyle>0</ReturnStyle>"}};
const TourChange ALL_IN_POSTPAID[] = {
    {"<Postpaid>", "name=\"Charge\" value=\"false\"", "name=\"Charge\" value=\"true\""},
    {"<Postpaid>", "name=\"OnlineCharge\" value=\"false\"",
     "name=\"OnlineCharge\" value=\"true\""}};
const TourChange REFUSING[] = {
    {"[*100#]", "Reply=", "Outcome=refuse\n# "},
    {"[*102#]", "Reply=", "Outcome=refuse\n# "},
    {"[*101*%s#]", "Credit=10.00\nReply=", "Outcome=refuse\n# "},
};

struct Missing {
    TourChange change;
    TourStop stop;
};

const Missing MISSING[] = {
    {{"<Prepaid>", "name=\"Balance\" value=\"true\"", "name=\"Balance\" value=\"false\""},
     {"without-balance", "configured without the balance"}},
    {{"<Prepaid>", "name=\"Charge\" value=\"true\"", "name=\"Charge\" value=\"false\""},
     {"without-top-up", "configured without the top-up"}},
    {{"<Prepaid>", "name=\"OnlineCharge\" value=\"true\"", "name=\"OnlineCharge\" value=\"false\""},
     {"without-link", "configured without the link to the top-up page"}},
    {{"<Prepaid>", "name=\"MSISDN\" value=\"true\"", "name=\"MSISDN\" value=\"false\""},
     {"without-number", "configured without the number"}},
};

template <typename T>
T *part(const QWidget *dialog, const char *role)
{
    return dialog->findChild<T *>(QLatin1String("USSDUIPlugin_") + QLatin1String(role));
}

bool isWaiting(const QWidget *dialog, const char *role)
{
    const QTextEdit *box = part<QTextEdit>(dialog, role);
    const QString waiting =
        Change::tr(QLatin1String("USSDUIPlugin"), QLatin1String("USSD_CODE_WAITTING"));
    return box && box->isVisible() && box->toPlainText() == waiting;
}

/// Returns true if the window is not waiting for a reply.
bool isAtRest(const QWidget *dialog)
{
    const QLineEdit *pin = part<QLineEdit>(dialog, "ChargeEdit");
    return pin && pin->isEnabled() && !isWaiting(dialog, "BalanceStatusTextEdit") &&
           !isWaiting(dialog, "MSISDNStatusTextEdit") &&
           !isWaiting(dialog, "ActivateStatusTextEdit");
}

bool waitForRest(TourGuide &guide, const QWidget *dialog)
{
    return guide.waitFor([dialog] { return isAtRest(dialog); });
}

bool topUp(TourGuide &guide, const QWidget *dialog)
{
    QLineEdit *pin = part<QLineEdit>(dialog, "ChargeEdit");
    QPushButton *activate = part<QPushButton>(dialog, "ChargeActivateButton");
    if (!pin || !activate)
        return guide.failHere();
    typeInto(pin, QLatin1String(PIN));
    if (!activate->isEnabled())
        return guide.failHere();
    activate->click();
    return true;
}

QWidget *openAccount(TourGuide &guide, PAID_TYPE type)
{
    return guide.open(type, DIALOG, type == PAID_TYPE_PREPAID ? "prepaid" : "postpaid");
}

/// Opens the window and takes a picture after its replies have arrived.
bool showAnswered(TourGuide &guide, PAID_TYPE type, const TourStop &stop)
{
    const QWidget *dialog = openAccount(guide, type);
    const bool shown = dialog && waitForRest(guide, dialog) && guide.take(stop);
    guide.close();
    return shown;
}

bool topUpWithBox(TourGuide &guide, const QWidget *dialog)
{
    guide.expectBox(BOX);
    return topUp(guide, dialog) && guide.take(WAITING) &&
           guide.waitFor([&guide, dialog] { return guide.sawBox() && isAtRest(dialog); }) &&
           guide.take(NEW_BALANCE);
}

bool walkWithBox(TourGuide &guide)
{
    if (!guide.useNetwork() || !guide.usePlugin())
        return false;
    const QWidget *dialog = openAccount(guide, PAID_TYPE_PREPAID);
    const bool walked = dialog && guide.take(OPENING) && waitForRest(guide, dialog) &&
                        guide.take(ANSWERED) && topUpWithBox(guide, dialog);
    guide.close();
    return walked && showAnswered(guide, PAID_TYPE_POSTPAID, POSTPAID);
}

bool topUpInside(TourGuide &guide, const QWidget *dialog)
{
    return topUp(guide, dialog) && guide.take(WAITING_INSIDE) && waitForRest(guide, dialog) &&
           guide.take(INSIDE);
}

bool walkInside(TourGuide &guide)
{
    if (!guide.useNetwork() || !guide.usePlugin(REPLY_INSIDE, 1))
        return false;
    const QWidget *dialog = openAccount(guide, PAID_TYPE_PREPAID);
    const bool walked = dialog && waitForRest(guide, dialog) && topUpInside(guide, dialog);
    guide.close();
    return walked;
}

bool walkRefused(TourGuide &guide)
{
    if (!guide.useNetwork(REFUSING, sizeof REFUSING / sizeof *REFUSING))
        return false;
    const QWidget *dialog = openAccount(guide, PAID_TYPE_PREPAID);
    const bool walked = dialog && waitForRest(guide, dialog) && topUp(guide, dialog) &&
                        waitForRest(guide, dialog) && guide.take(FAILED);
    guide.close();
    return walked;
}

bool walkMissing(TourGuide &guide)
{
    for (const Missing &missing : MISSING) {
        if (!guide.useNetwork() || !guide.usePlugin(&missing.change, 1) ||
            !showAnswered(guide, PAID_TYPE_PREPAID, missing.stop))
            return false;
    }
    return true;
}

} // namespace

bool TourParts::walkAccount(TourGuide &guide)
{
    return walkWithBox(guide) && walkInside(guide) && walkRefused(guide) && walkMissing(guide) &&
           guide.usePlugin(ALL_IN_POSTPAID, sizeof ALL_IN_POSTPAID / sizeof *ALL_IN_POSTPAID) &&
           showAnswered(guide, PAID_TYPE_POSTPAID, POSTPAID_ALL);
}

} // namespace Dashboard
