#ifndef PREPAIDDIALOGTEST_H
#define PREPAIDDIALOGTEST_H

#include "PrepaidTest.h"

#include <QMessageBox>
#include <QScrollBar>
#include <QSignalSpy>

#include "fake_tksv.h"
#include "Languages.h"

const char PIN[] = "123456789012";

inline QString pin()
{
    return QLatin1String(PIN);
}

/// Returns the functions of the USSD service that were called, in order.
inline QStringList ussdCalls()
{
    QStringList names;
    for (const FakeCall &call : fakeSdkCalls()) {
        const QString name = QString::fromStdString(call.function);
        if (name == QLatin1String("TKSV_USSDSrv_Release") ||
            name == QLatin1String("TKSV_USSDSrv_Request"))
            names << name.mid(int(strlen("TKSV_USSDSrv_")));
    }
    return names;
}

/**
 * The base class of tests that check which commands the account window sends, when it sends these
 * commands, and how it handles the replies.
 */
class PrepaidDialogTest : public PrepaidTest
{
    Q_OBJECT

protected:
    void configureCharge(const QByteArray &charge);
    void refuseAll(int status);
    void sendFrom(int component);
    Account only(const QByteArray &charge); ///< returns an account that shows only the top-up
};

#endif
