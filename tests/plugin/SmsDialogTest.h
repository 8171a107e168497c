#ifndef SMSDIALOGTEST_H
#define SMSDIALOGTEST_H

#include "PluginTest.h"

#include "QtCompat.h"
#include <QBuffer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTreeWidget>
#include <QXmlStreamReader>

#include "fake_tksv.h"
#include "Languages.h"
#include "LogicListener.h"
#include "requests/USSDLogic.h"
#include "windows/ServiceReplyLabel.h"
#include "windows/USSDExtendDialog.h"
#include "windows/USSDService.h"
#include "windows/USSDSMSDlg.h"

using namespace Formats;

inline QByteArray entry(int number)
{
    const QByteArray text = QByteArray::number(number);
    return "<item name='" + text + "' parent='0' id='SERVICE_" + text + "'/>";
}

inline QByteArray group(int number, const QByteArray &inputControl, const QByteArray &buttonControl)
{
    const QByteArray text = QByteArray::number(number);
    return "<item name='" + text + "' parent='" + text +
           "'><control id='IDS_STR_PROMPT' posx='170' posy='10' width='300' height='40'/>"
           "<control id='IDS_SMSUSSD_LABEL_NUMBER' posx='170' posy='60' width='310' height='20'/>" +
           inputControl + buttonControl +
           "<control posx='170' posy='120' width='320' height='100'/></item>";
}

inline QByteArray inputControl(const QByteArray &limits)
{
    return "<control posx='170' posy='85' width='120' height='24'>" + limits + "</control>";
}

inline QByteArray buttonControl(const QByteArray &type, const QByteArray &command,
                                const QByteArray &number = QByteArray())
{
    return "<control " + type +
           " id='IDS_BUTTON_SEND' posx='300' posy='86' width='110' height='26'><command>" +
           command + "</command><number>" + number + "</number></control>";
}

/// Returns true if the area contains any pixel that does not have the background colour.
inline bool inkIn(const QImage &image, const QRect &area)
{
    const QImage part = image.copy(area);
    for (int y = 0; y < part.height(); ++y) {
        for (int x = 0; x < part.width(); ++x) {
            if (part.pixel(x, y) != image.pixel(0, image.height() - 1))
                return true;
        }
    }
    return false;
}

const char NO_INPUT[] = "<control visible='false' posx='1' posy='2' width='3' height='4'/>";
const char DIGITS[] = "<LimitText>0-9</LimitText><length>15</length><minlenth>3</minlenth>";
const char WORDS[] = "<length>30</length><minlenth>3</minlenth>";
const char USSD[] = "type='ussd'";
const char SMS[] = "type='sms'";

/**
 * The base class for tests that operate the USSD-SMS dialog in a frame with keys and mouse clicks.
 * By default, the network does not reply.
 */
class SmsDialogTest : public PluginTest
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

protected:
    /// The numbers of the services in the test configuration.
    enum Service {
        BALANCE = 1, // USSD
        CALL,        // USSD with an input of at least 3 digits
        TWICE,       // USSD with two placeholders
        FIXED,       // USSD with an input that is not used
        TARIFF,      // SMS
        WEATHER,     // SMS with an input of at least 3 characters
        NOWHERE,     // SMS without a number
        FOUR,        // a group of four controls
        BARE,        // no group
        NO_KIND,     // neither USSD nor SMS, with an input
        PREPAID,     // USSD
        TOO_LONG,    // USSD of 92 characters
        NOTHING,     // USSD without a command
        SIX          // a group of six controls
    };

    static QByteArray config();
    void open(); ///< creates the dialog in a visible frame
    void openShipped();
    void openWith(const QByteArray &xml);

    template <typename Widget>
    Widget *part(const char *role)
    {
        Widget *found = m_dialog->findChild<Widget *>(CUSSDSMSDlg::objectNameOf(role));
        if (!found)
            qFatal("the dialog has no %s", role);
        return found;
    }
    QTreeWidget *tree() { return part<QTreeWidget>("ServiceTree"); }
    QLabel *infoLabel() { return part<QLabel>("InfoLabel"); }
    QLabel *captionLabel() { return part<QLabel>("CaptionLabel"); }
    QLineEdit *input() { return part<QLineEdit>("InputEdit"); }
    QPushButton *button() { return part<QPushButton>("SendButton"); }
    QLabel *resultLabel() { return part<QLabel>("ResultLabel"); }
    QString result() { return resultLabel()->text(); }
    QList<QWidget *> controls();
    QTreeWidgetItem *row(int service);
    QWidget *focused() { return m_frame->focusWidget(); }

    void select(int service); ///< clicks the service in the tree
    void press() { QTest::mouseClick(button(), Qt::LeftButton); }
    void type(const QString &text) { QTest::keyClicks(input(), text); }
    void networkSays(const QString &text);
    void deviceSays(int status);
    void smsFared(int result, const QString &number, const QString &text);
    static QStringList requests();
    static int smsSent() { return int(fakeSdkCalls("TKSV_SMSSrv_SendMsg").size()); }
    static QString text(const char *key) { return CUSSDSMSDlg::tr(QLatin1String(key)); }
    bool isBusy();
    bool isIdle();
    void sendTariff();
    int receivers(const char *signal);

    QScopedPointer<USSDExtendDialog> m_frame;
    QPointer<CUSSDSMSDlg> m_dialog;
};

#endif
