#ifndef PREPAIDTEST_H
#define PREPAIDTEST_H

#include "PluginTest.h"

#include <functional>

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTextEdit>

#include "windows/USSDDlg.h"
#include "windows/USSDExtendDialog.h"

class QMessageBox;

/**
 * The base class for tests that operate the account window in its frame as a user would, with the
 * fake SDK. The network does not reply unless a test sends a reply.
 */
class PrepaidTest : public PluginTest
{
    Q_OBJECT

protected:
    /// The "item" elements of an account. Components with an empty item are not shown.
    struct Account {
        QByteArray balance = balanceItem(0);
        QByteArray charge = chargeItem(1);
        QByteArray online = onlineItem(2, "https://www.example.com/top-up");
        QByteArray msisdn = msisdnItem(3);
    };

    void setUp() override;
    void tearDown() override;

    // ---- configuration
    static QByteArray balanceItem(int pos);
    static QByteArray chargeItem(int pos, int returnStyle = 0, int length = 16, int minlenth = 12,
                                 const QByteArray &limitText = "0-9");
    static QByteArray onlineItem(int pos, const QByteArray &url);
    static QByteArray msisdnItem(int pos);
    /// Writes a configuration with two accounts and the detection section. The detection is
    /// disabled if `pattern` is empty.
    void configure(const Account &prepaid, const Account &postpaid,
                   const QByteArray &pattern = QByteArray(), const QByteArray &query = "*103#");
    void configure(const Account &both) { configure(both, both); }

    // ---- the window
    /// Creates the dialog in a visible frame of the dialog's preferred size, without sending
    /// anything.
    void make(PAID_TYPE type = PAID_TYPE_PREPAID, WINDOW_MODEL model = WINDOW_MODEL_MODAL);
    /// Creates the dialog with make() and opens it.
    void open(PAID_TYPE type = PAID_TYPE_PREPAID);
    /// Opens the dialog through the service, as a host would.
    void openByService(PAID_TYPE type = PAID_TYPE_PREPAID);
    void fitFrame(); ///< resizes the frame to the dialog's preferred size
    USSDDlg *dialog() { return m_dialog; }
    USSDExtendDialog *frame() { return m_frame.data(); }

    template <typename Widget>
    Widget *part(const char *role)
    {
        Widget *found =
            m_dialog->findChild<Widget *>(QLatin1String("USSDUIPlugin_") + QLatin1String(role));
        return found ? found : missing<Widget>(role);
    }
    QPushButton *balanceButton() { return part<QPushButton>("BalanceUpdateButton"); }
    QPushButton *activateButton() { return part<QPushButton>("ChargeActivateButton"); }
    QPushButton *msisdnButton() { return part<QPushButton>("MSISDNUpdateButton"); }
    QPushButton *closeButton() { return part<QPushButton>("CloseButton"); }
    QLineEdit *chargeEdit() { return part<QLineEdit>("ChargeEdit"); }
    QLabel *link() { return part<QLabel>("OnlineURL"); }
    QTextEdit *balanceBox() { return part<QTextEdit>("BalanceStatusTextEdit"); }
    QTextEdit *activateBox() { return part<QTextEdit>("ActivateStatusTextEdit"); }
    QTextEdit *msisdnBox() { return part<QTextEdit>("MSISDNStatusTextEdit"); }

    // ---- user actions
    static void click(QPushButton *button);
    void type(const QString &pin);  ///< types the PIN into the field, one key at a time
    void topUp(const QString &pin); ///< types the PIN and presses Activate
    /// Returns the widget with the focus. If a message box is open, this is a widget in the message
    /// box.
    QWidget *keyTarget();
    void pressReturn(bool isRepetition = false); ///< presses Return without releasing it
    void releaseReturn();

    // ---- network actions
    void networkSays(const QString &text);
    /// Sends a reply that opens a message box. Calls `look` while the box is open, and then presses
    /// its button. Returns the text of the box, or a null string if no box has opened.
    QString networkSaysIntoBox(const QString &text,
                               const std::function<void(QMessageBox *)> &look = nullptr);
    static QMessageBox *messageBox(); ///< returns the open message box, or null if there is none
    static QString textInMessageBox();
    static void closeMessageBox();                      ///< presses the button of the box
    void logicSays(int component, const QString &text); ///< emits a reply without a command
    static QStringList requests();                      ///< the commands of all requests so far

    static QString text(const char *key);
    static QStringList languages();

private:
    template <typename Widget>
    static Widget *missing(const char *role)
    {
        qFatal("the dialog has no %s", role);
        return nullptr;
    }

    static QByteArray sectionsForOthers();

    QScopedPointer<USSDExtendDialog> m_frame;
    QPointer<USSDDlg> m_dialog;
};

#endif
