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
 * The service that the host receives. It creates each window when it is first used, shows it either
 * embedded in a widget of the host or modal in a separate frame, and destroys all windows. Must be
 * used on the GUI thread.
 *
 * The service owns all dialogs and frames. A pointer becomes null if the host deletes the widget
 * that contains the dialog or the frame.
 */
class CUSSDService : public QObject, public IUSSD
{
    Q_OBJECT
    Q_INTERFACES(IUSSD)
public:
    /// Returns the singleton, which the first call creates. Returns null if it cannot be created.
    static CUSSDService *instance();
    /// Destroys all windows, the logic and the singleton. Does nothing if there is no singleton.
    static void Destroy();
    ~CUSSDService() override;

    int GetPrePostInfo(bool &inUse, bool &postpaid, int &result, bool ask) override;
    int DoPrePostPaidModal(PAID_TYPE type) override;
    int ShowPrePostPaidWindow(QWidget *parent, QRect &rect, PAID_TYPE type) override;
    bool IsImsiDynamicMatch() override;
    bool CheckImsiIsValid(const QString &imsi, int &flags) override;

    /// Shows the general window embedded in `parent`. For other types, only stores the type. Always
    /// returns 0.
    int showWindow(QWidget *parent, QRect &rect, PAID_TYPE type);
    int DoModal();
    /// Shows a modal window and returns at once; the frame of the window blocks its parent. Returns
    /// 1 if the window was shown, otherwise 0.
    int doModal(PAID_TYPE type);
    void Hide();
    void FitSize(QRect &rect);
    int Notify(unsigned int event, unsigned int param1, unsigned int param2);
    void unSDKRegisterEvent();
    /// Deletes the dialogs, the frames and the logic.
    void destroyUSSD();

    static QString tr(const QString &key);

public slots:
    /// Deletes the modal dialogs and their frames once a dialog has finished.
    void OnClickedCloseButton();
    /// Handles the closing of a dialog's frame by finishing the dialog.
    void OnDlgCloseEvent();
    /// Closes the frame when the dialog requests it, or when the frame has been rejected.
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

    PAID_TYPE m_modalPaidType; // type of the last doModal()
    PAID_TYPE m_shownPaidType; // type of the last showWindow() or DoModal()
    QPointer<USSDDlg> m_pPrepaidDlg;
    QPointer<USSDDlg> m_pPostpaidDlg;
    QPointer<USSDGeneralDlg> m_pGeneralModalDlg;
    QPointer<USSDGeneralDlg> m_pGeneralEmbeddedDlg;
    QPointer<USSDExtendDialog> m_pPrepaidFrame;
    QPointer<USSDExtendDialog> m_pPostpaidFrame;
    QPointer<USSDExtendDialog> m_pGeneralFrame;
    QPointer<USSDExtendDialog> m_pUSSDSMSFrame;
    QPointer<CUSSDSMSDlg> m_pUSSDSMSDlg;
    QList<QPointer<USSDExtendDialog>> m_listDroppedFrames; // frames that will be deleted

    static CUSSDService *m_pInstance;
};

#endif
