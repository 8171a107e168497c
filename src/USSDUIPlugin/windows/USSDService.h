#ifndef USSDSERVICE_H
#define USSDSERVICE_H

#include <QList>
#include <QObject>
#include <QPointer>

#include "IUSSD.h"
#include "requests/USSDCommand.h"
#include "USSDDlg.h"
#include "USSDExtendDialog.h"
#include "USSDGeneralDlg.h"
#include "USSDSMSDlg.h"

/**
 * The service that the host gets: makes each window on first need, shows it embedded in a host's
 * widget or modal in a frame of its own, and takes everything down. GUI thread only.
 *
 * It owns all dialogs and frames. The pointers to them notice when a host deletes the widget that a
 * dialog or frame was put into.
 */
class CUSSDService : public QObject, public IUSSD
{
    Q_OBJECT
    Q_INTERFACES(IUSSD)
public:
    /// The singleton, made on the first call; null when it cannot be made.
    static CUSSDService *instance();
    /// Takes everything down, the singleton too. Harmless without one.
    static void Destroy();
    ~CUSSDService() override;

    int GetPrePostInfo(bool &inUse, bool &postpaid, int &result, bool ask) override;
    int DoPrePostPaidModal(PAID_TYPE type) override;
    int ShowPrePostPaidWindow(QWidget *parent, QRect &rect, PAID_TYPE type) override;
    bool IsImsiDynamicMatch() override;
    bool CheckImsiIsValid(const QString &imsi, int &flags) override;

    /// Always 0. Types other than general are only remembered, and show nothing.
    int showWindow(QWidget *parent, QRect &rect, PAID_TYPE type);
    int DoModal();
    /// 1 when the window was shown, 0 when not. Returns at once; the frame blocks its parent.
    int doModal(PAID_TYPE type);
    void Hide();
    void FitSize(QRect &rect);
    int Notify(unsigned int event, unsigned int param1, unsigned int param2);
    void unSDKRegisterEvent();
    /// Deletes dialogs, frames and the logic.
    void destroyUSSD();

    static QString tr(const QString &key);

public slots:
    // A dialog's own close button, a closed frame, and a dialog or frame that wants to be closed.
    void OnClickedCloseButton();
    void OnDlgCloseEvent();
    void OnCloseButtonClicked();

private:
    CUSSDService();

    int createUSSDDlgWindow(WINDOW_MODEL model, PAID_TYPE type);
    int createUSSDGeneralDlgWindow(WINDOW_MODEL model);
    int createOuterDlgForUSSDPrepaid();
    int createOuterDlgForUSSDPostpaid();
    int createOuterDlgForUSSDSMS();
    int createOuterDlgForUSSDGeneralDlg();
    bool makeFrame(QPointer<USSDExtendDialog> &frame);
    int makeListedFrame(QPointer<USSDExtendDialog> &frame);
    void setPropForDlgAndLayout(USSDExtendDialog *frame);
    int doGeneralModal();
    int doPaidModal(PAID_TYPE type);
    int doUSSDSMSModal();
    void setPropShowDialog(USSDExtendDialog *frame, USSDDlg *dialog, PAID_TYPE type);
    void SetUSSDSMSSDlg(USSDExtendDialog *frame, CUSSDSMSDlg *dialog);
    void changeLanguage();
    void closeFramesOfTheSim();
    void dropFrame(QPointer<USSDExtendDialog> &frame);
    void connectAnew(QObject *sender, const char *signal, const char *slot);

    PAID_TYPE m_modalPaidType; // what the last doModal() opened
    PAID_TYPE m_shownPaidType; // what the last showWindow() or DoModal() showed
    QPointer<USSDDlg> m_pPrepaidDlg;
    QPointer<USSDDlg> m_pPostpaidDlg;
    QPointer<USSDGeneralDlg> m_pGeneralModalDlg;
    QPointer<USSDGeneralDlg> m_pGeneralEmbeddedDlg;
    QPointer<USSDExtendDialog> m_pPrepaidFrame;
    QPointer<USSDExtendDialog> m_pPostpaidFrame;
    QPointer<USSDExtendDialog> m_pGeneralFrame;
    QPointer<USSDExtendDialog> m_pUSSDSMSFrame;
    QPointer<CUSSDSMSDlg> m_pUSSDSMSDlg;
    QList<QPointer<USSDExtendDialog>> m_listDroppedFrames; // that wait for their deletion

    static CUSSDService *m_pInstance;
};

#endif
