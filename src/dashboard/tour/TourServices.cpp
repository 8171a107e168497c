#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "IUSSD.h"
#include "plugin/GeneralWindow.h"
#include "TourGuide.h"
#include "TourParts.h"

namespace Dashboard
{

namespace
{

const char DIALOG[] = "USSDUIPlugin_SMSDialog";

const TourChange NOT_READY[] = {{"[Network]", "SMS=ready", "SMS=not-ready"}};
const TourStop NOT_READY_STOP = {"sms-not-ready", "no short message can be sent at the moment"};

/** A service, identified by its position in the tree, and the actions of the tour. */
struct Service {
    int row;
    const char *input; // null if the service has no input field or is not sent
    bool isSent;
    TourStop idle;
    TourStop waiting;
    TourStop outcome;
};

const TourStop NONE = {nullptr, nullptr};

const Service SERVICES[] = {
    {0,
     nullptr,
     true,
     {"code", "a service by code"},
     {"code-waiting", "its code is on its way"},
     {"code-answered", "the network's reply"}},
    {7,
     "5550199",
     true,
     {"code-with-field", "a service by code, with a number to enter"},
     {"code-with-field-waiting", "its code is on its way"},
     {"code-with-field-answered", "the network's reply"}},
    {3,
     nullptr,
     true,
     NONE, // no picture, because it would look like that of the outcome
     NONE,
     {"code-refused", "the network refuses it, so the result stays empty"}},
    {5, nullptr, true, NONE, NONE, {"code-timed-out", "the network is silent"}},
    {10,
     nullptr,
     true,
     {"sms", "a service by short message"},
     {"sms-waiting", "the message is on its way"},
     {"sms-sent", "the message was sent: the answer comes by short message"}},
    {9,
     "Paris",
     true,
     {"sms-with-field", "a service by short message, with a text to enter"},
     {"sms-with-field-waiting", "the message is on its way"},
     {"sms-with-field-sent", "the message was sent"}},
    {11, nullptr, true, NONE, NONE, {"sms-failed", "the message was not sent"}},
};

template <typename T>
T *part(const QWidget *dialog, const char *role)
{
    return dialog->findChild<T *>(QLatin1String("USSDUIPlugin_SMSDialog_") + QLatin1String(role));
}

bool select(const QWidget *dialog, int row)
{
    QTreeWidget *tree = part<QTreeWidget>(dialog, "ServiceTree");
    QTreeWidgetItem *root = tree ? tree->topLevelItem(0) : nullptr;
    if (!root || !root->child(row))
        return false;
    tree->setCurrentItem(root->child(row));
    return true;
}

bool takeIfWanted(TourGuide &guide, const TourStop &stop)
{
    return !stop.name || guide.take(stop);
}

bool send(TourGuide &guide, const QWidget *dialog, const Service &service)
{
    QPushButton *button = part<QPushButton>(dialog, "SendButton");
    QLineEdit *input = part<QLineEdit>(dialog, "InputEdit");
    const QTreeWidget *tree = part<QTreeWidget>(dialog, "ServiceTree");
    if (!button || !input)
        return guide.failHere();
    if (service.input)
        typeInto(input, QLatin1String(service.input));
    // The button is enabled only after the SDK has reported that short messages can be sent.
    if (!guide.waitFor([button] { return button->isEnabled(); }))
        return false;
    button->click();
    return takeIfWanted(guide, service.waiting) &&
           guide.waitFor([tree] { return tree->isEnabled(); }) && guide.take(service.outcome);
}

bool visit(TourGuide &guide, const QWidget *dialog, const Service &service)
{
    if (!select(dialog, service.row))
        return guide.failHere();
    return takeIfWanted(guide, service.idle) && send(guide, dialog, service);
}

bool walkReady(TourGuide &guide)
{
    const QWidget *dialog = guide.open(PAID_TYPE_USSD_SMS, DIALOG, "services");
    bool walked = dialog;
    for (const Service &service : SERVICES)
        walked = walked && visit(guide, dialog, service);
    guide.close();
    return walked;
}

bool walkNotReady(TourGuide &guide)
{
    const QWidget *dialog = guide.open(PAID_TYPE_USSD_SMS, DIALOG, "services");
    const int row = 10;
    const bool walked = dialog && select(dialog, row) && guide.take(NOT_READY_STOP);
    guide.close();
    return walked;
}

} // namespace

bool TourParts::walkServices(TourGuide &guide)
{
    return guide.useNetwork() && guide.usePlugin() && walkReady(guide) &&
           guide.useNetwork(NOT_READY, 1) && guide.usePlugin() && walkNotReady(guide);
}

} // namespace Dashboard
