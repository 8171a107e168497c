#ifndef USSDDLG_H
#define USSDDLG_H

#include <QHash>
#include <QList>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include "INotifyService.h"
#include "IUSSD.h"
#include "PluginConfig.h"
#include "PluginContract.h"
#include "requests/USSDCommand.h"
#include "requests/USSDLogic.h"
#include "TopUpInputLimits.h"

class QFrame;
class QGridLayout;
class QLabel;
class QLineEdit;
class QMessageBox;
class QPushButton;
class AccountReplyView;

/**
 * The account window for prepaid or postpaid SIMs. Its components are the balance, the top-up, the
 * link to the top-up page, and the subscriber's own number. The configuration specifies which
 * components are shown and in which position. The window also runs the prepaid/postpaid detection.
 * All functions must be called from the GUI thread.
 *
 * The window is busy from the first accepted command until it is closed, even after a reply. While
 * it is not busy, it drops all replies except those to the detection query.
 */
class USSDDlg : public QWidget
{
    Q_OBJECT
public:
    USSDDlg();
    ~USSDDlg() override;

    /// Builds the window. Must be called only once.
    void InitDialog(QWidget *parent, PAID_TYPE type, WINDOW_MODEL model);
    /// Returns the size that the window requires in the current language, or (-1, -1) before it has
    /// been built.
    QSize GetSize();
    /// Cancels pending requests, resets the window and shows it. Requests the balance and the
    /// subscriber's own number if the window shows these components. Does nothing if `type` is
    /// neither prepaid nor postpaid.
    void MyDoModal(PAID_TYPE type);
    /// Starts the prepaid/postpaid detection if `ask` is true. The window later sends a record with
    /// the result to the host's notification service. On return, the arguments contain the current
    /// values of this record. Returns 1, or 0 if the logic object does not exist.
    int GetPrePostInfo(bool &inUse, bool &postpaid, int &result, bool ask);
    /// Retranslates all visible strings except replies.
    void SetLanguage();
    static QString tr(const QString &key);

public slots:
    /// Removes the pending commands and emits clickedcloseButton(). Must be called when the frame
    /// is closed. A receiver of the signal may delete this object.
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
    AccountReplyView *statusBoxOf(int component) const;
    QList<QWidget *> controlsOf(int component) const;

    PAID_TYPE m_paidType;
    WINDOW_MODEL m_windowModel;
    bool m_bBusy;
    bool m_bReturnDown; // true while Return is pressed
    PrePostRecord m_prePostRecord;
    Formats::PrePostDiffer m_prePostDiffer;
    Formats::TopUpInputLimits m_chargeRules;
    QString m_strOnlineAddress;
    QPointer<USSDLogic> m_pLogic; // not owned
    QGridLayout *m_pGrid;
    QList<QFrame *> m_listFreeLines; // separators that have not been placed in the grid yet
    QList<QWidget *> m_listTabOrder; // in the order of the layout
    QHash<int, QPointer<QWidget>> m_hashParkFocus; // focus before the request, keyed by component
    QStringList m_listBoxReplies;      // replies whose message boxes have not been closed yet
    QPointer<QMessageBox> m_pReplyBox; // the open message box; a child of the window

    QLabel *m_pBalanceLabel;
    AccountReplyView *m_pBalanceStatusTextEdit;
    QPushButton *m_pBalanceUpdateButton;
    QLabel *m_pBalanceInfoLabel;
    QFrame *m_pBalanceLine;

    QLabel *m_pChargeLabel;
    QLineEdit *m_pChargeEdit;
    QPushButton *m_pChargeActivateButton;
    AccountReplyView *m_pActivateStatusTextEdit;
    QFrame *m_pChargeLine;

    QLabel *m_pOnlineChargeLabel;
    QLabel *m_pOnlineURL;
    QFrame *m_pOnlineChargeLine;

    QLabel *m_pMSISDNLabel;
    AccountReplyView *m_pMSISDNStatusTextEdit;
    QPushButton *m_pMSISDNUpdateButton;

    QPushButton *m_pCloseButton;
};

#endif
