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
 * The service that the host receives. It creates each window on first use, shows it embedded in a
 * widget of the host or as a modal window in a separate frame, and destroys all windows. All
 * functions must be called from the GUI thread.
 *
 * The service owns all windows and frames. A pointer becomes null if the host deletes the widget
 * that contains the window or the frame.
 */
class CUSSDService : public QObject, public IUSSD
{
    Q_OBJECT
    Q_INTERFACES(IUSSD)
public:
    /// Returns the singleton, which is created by the first call. Returns null if it cannot be
    /// created.
    static CUSSDService *instance();
    /// Destroys all windows, the logic and the singleton. Does nothing if the singleton does not
    /// exist.
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
    /// Shows a window in a separate frame, which is modal to the host's main window. Returns
    /// immediately. Returns 1 if the window was shown, otherwise 0.
    int doModal(PAID_TYPE type);
    void Hide();
    void FitSize(QRect &rect);
    int Notify(unsigned int event, unsigned int param1, unsigned int param2);
    void unSDKRegisterEvent();
    /// Deletes the windows, the frames and the logic.
    void destroyUSSD();

    static QString tr(const QString &key);

public slots:
    /// Deletes the modal windows and their frames after a window has been closed.
    void OnClickedCloseButton();
    /// Handles the closing of a window's frame by closing the window itself.
    void OnDlgCloseEvent();
    /// Closes the frame when the window requests this, or when the frame has been rejected.
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

    PAID_TYPE m_modalPaidType; // the type of the last doModal() call
    PAID_TYPE m_shownPaidType; // the type of the last showWindow() or DoModal() call
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
