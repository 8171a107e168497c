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

/// Returns the names of all USSD functions of the SDK that have been called, in order.
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
 * The base class for testing which commands the account window sends, when it sends them, and how
 * it handles the replies.
 */
class PrepaidDialogTest : public PrepaidTest
{
    Q_OBJECT

protected:
    void configureCharge(const QByteArray &charge);
    void refuseAll(int status);
    void sendFrom(int component);
    Account only(const QByteArray &charge); ///< returns an account with only the top-up
};

#endif
