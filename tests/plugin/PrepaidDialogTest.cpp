#include "PrepaidDialogTest.h"

void PrepaidDialogTest::configureCharge(const QByteArray &charge)
{
    Account account;
    account.charge = charge;
    configure(account);
}

PrepaidTest::Account PrepaidDialogTest::only(const QByteArray &charge)
{
    Account account;
    account.balance.clear();
    account.charge = charge;
    account.online.clear();
    account.msisdn.clear();
    return account;
}

/// Enters a PIN and presses the button that belongs to the component.
void PrepaidDialogTest::sendFrom(int component)
{
    type(pin());
    if (component == COMPONENT_CHARGE)
        click(activateButton());
    else
        click(component == COMPONENT_BALANCE ? balanceButton() : msisdnButton());
}

void PrepaidDialogTest::refuseAll(int status)
{
    allowWarning("TKSV_USSDSrv_Request");
    fakeSdkSetAnswer(fakeRefused(1, status));
}
