#ifndef USSDDLG_H
#define USSDDLG_H

#include <QHash>
#include <QList>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include "ChargeRules.h"
#include "INotifyService.h"
#include "IUSSD.h"
#include "PluginConfig.h"
#include "PluginContract.h"
#include "requests/USSDCommand.h"
#include "requests/USSDLogic.h"

class QFrame;
class QGridLayout;
class QLabel;
class QLineEdit;
class QMessageBox;
class QPushButton;
class StatusBox;

/**
 * The account window of a prepaid or a postpaid SIM: balance, top-up, link to the top-up page and
 * own number, each where and if the configuration says so. It also asks the network which of the
 * two the SIM is. GUI thread only.
 *
 * Busy from the first command that is accepted until it is closed; no answer ends that. While it is
 * not busy, answers to its components are dropped, but the one to the detection never is.
 */
class USSDDlg : public QWidget
{
    Q_OBJECT
public:
    USSDDlg();
    ~USSDDlg() override;

    /// Builds the dialog; called once.
    void InitDialog(QWidget *parent, PAID_TYPE type, WINDOW_MODEL model);
    /// What the dialog needs for its texts in the current language; (-1, -1) before it is built.
    QSize GetSize();
    /// Gives up what is in progress, shows the dialog afresh, and asks for balance and own number
    /// as far as they are shown. Types other than prepaid and postpaid do nothing.
    void MyDoModal(PAID_TYPE type);
    /// Starts the detection when `ask` is true; its outcome goes to the host's notification
    /// service. The first three go into the record that it keeps, and come back from there.
    /// 1, or 0 when there is no logic.
    int GetPrePostInfo(bool &inUse, bool &postpaid, int &result, bool ask);
    /// Re-reads every visible text. Replies stay in their language.
    void SetLanguage();
    static QString tr(const QString &key);

public slots:
    /// The outer window closes; the dialog may be deleted when this returns.
    void OnClickedCloseButton();

signals:
    void clickedcloseButton();
    void closeButtonClicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void OnCloseButtonClicked();
    void OnClickedBalanceUpdateButton();
    void OnClickedActivateButton();
    void OnClickedMSISDNUpdateButton();
    void OnTextEdited(QString text);
    void OnResponseReceived(int component, QString text);
    void openReplyBox();
    void OnReplyBoxFinished();

private:
    bool createWidgets();
    bool createBalance();
    bool createCharge();
    bool createOnlineCharge();
    bool createMSISDN();
    void getConfigure();
    void initWidgets();
    void initStatusBoxes();
    void initChargeComponent();
    void limitChargeEdit();
    void initOnlineChargeComponent();
    void initAccessibility();
    void createGrid();
    void layout();
    void connectWidgets();
    void changePaidType(PAID_TYPE type);

    void findPosAndAddElements(int &row);
    void setUpGrid();
    void setRowHeights(const QList<_COMPONENT> &components);
    void findRowCount(int component, int &rows);
    void addComponentElements(_COMPONENT component, int &row, bool &isFirst);
    void addBalanceElements(int &row);
    void addChargeElements(int &row);
    void addOnlineChargeElements(int &row);
    void addMSISDNElements(int &row);
    void addSeparator(int &row);
    void addCloseButton(int row);
    void place(QWidget *widget, int row, int column, int columns = 1);
    void placeInBox(QWidget *widget, int gap, int row, int rows, int columns);
    void hideComponents();
    void initTabOrder();

    void setLanguageForBalance();
    void setLanguageForCharge();
    void setLanguageForOnlineCharge();
    void setLanguageForMSISDN();

    void resetCharge();
    void sendUSSDCommand(_COMPONENT component, int attr);
    int sendUnlessEmpty(_COMPONENT component, const QString &command, int *status);
    void awaitAnswer(_COMPONENT component, bool isSent);
    void routeResponse(int component, const QString &text, bool isWaiting);
    void onChargeResponseReceived(const QString &text);
    bool isReplyBoxDue() const;
    void dropReplyBoxes();
    void updateBalanceAfterCharge();
    void enableDisableButton(_COMPONENT component, bool disable);
    void parkFocus(_COMPONENT component);
    void returnFocus(_COMPONENT component);

    void startDetection();
    void onPrePostPaidRspReceived(const QString &text);
    void notifyHost();
    void sendNotify(unsigned int msg, NotifyParam wParam, NotifyParam lParam);

    bool isShown(_COMPONENT component) const;
    int chargeReturnStyle() const;
    QFrame *lineOf(_COMPONENT component) const;
    StatusBox *statusBoxOf(int component) const;
    QList<QWidget *> controlsOf(int component) const;

    PAID_TYPE m_paidType;
    WINDOW_MODEL m_windowModel;
    bool m_bBusy;
    bool m_bReturnDown; // the key was pressed and is not seen released
    PrePostRecord m_prePostRecord;
    PrePostDiffer m_prePostDiffer;
    ChargeRules m_chargeRules;
    QString m_strOnlineAddress;
    QPointer<USSDLogic> m_pLogic; // not owned
    QGridLayout *m_pGrid;
    QList<QFrame *> m_listFreeLines;               // separators that are not laid out yet
    QList<QWidget *> m_listTabOrder;               // as laid out
    QHash<int, QPointer<QWidget>> m_hashParkFocus; // component to the control that had the focus
    QStringList m_listBoxReplies;      // that still have to be closed by the user, the open one too
    QPointer<QMessageBox> m_pReplyBox; // the open one; a child

    QLabel *m_pBalanceLabel;
    StatusBox *m_pBalanceStatusTextEdit;
    QPushButton *m_pBalanceUpdateButton;
    QLabel *m_pBalanceInfoLabel;
    QFrame *m_pBalanceLine;

    QLabel *m_pChargeLabel;
    QLineEdit *m_pChargeEdit;
    QPushButton *m_pChargeActivateButton;
    StatusBox *m_pActivateStatusTextEdit;
    QFrame *m_pChargeLine;

    QLabel *m_pOnlineChargeLabel;
    QLabel *m_pOnlineURL;
    QFrame *m_pOnlineChargeLine;

    QLabel *m_pMSISDNLabel;
    StatusBox *m_pMSISDNStatusTextEdit;
    QPushButton *m_pMSISDNUpdateButton;

    QPushButton *m_pCloseButton;
};

#endif
