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
 * The service that the plug-in provides to the host. It creates each window on first use and shows
 * it, either embedded in a widget of the host or as a modal window with a separate frame. All
 * functions must be called from the GUI thread.
 *
 * The service owns all windows and frames. If the host deletes a window or a frame, the pointer to
 * it becomes null.
 */
class CUSSDService : public QObject, public IUSSD
{
    Q_OBJECT
    Q_INTERFACES(IUSSD)
public:
    /// Returns the singleton and creates it on the first call. Returns null if it cannot be
    /// created.
    static CUSSDService *instance();
    /// Destroys the windows, the logic object and the singleton. Does nothing without a singleton.
    static void Destroy();
    ~CUSSDService() override;

    int GetPrePostInfo(bool &inUse, bool &postpaid, int &result, bool ask) override;
    int DoPrePostPaidModal(PAID_TYPE type) override;
    int ShowPrePostPaidWindow(QWidget *parent, QRect &rect, PAID_TYPE type) override;
    bool IsImsiDynamicMatch() override;
    bool CheckImsiIsValid(const QString &imsi, int &flags) override;

    /// Shows the general window embedded in `parent`. If `type` is not PAID_TYPE_GENERAL, stores
    /// the type but does not show a window. Always returns 0.
    int showWindow(QWidget *parent, QRect &rect, PAID_TYPE type);
    int DoModal();
    /// Shows a window in a separate frame that is modal to the host's main window. Returns
    /// immediately. Returns 1 if the window was shown, otherwise 0.
    int doModal(PAID_TYPE type);
    void Hide();
    void FitSize(QRect &rect);
    int Notify(unsigned int event, unsigned int param1, unsigned int param2);
    void unSDKRegisterEvent();
    /// Deletes the windows, the frames and the logic object.
    void destroyUSSD();

    static QString tr(const QString &key);

public slots:
    /// Deletes the modal windows and their frames. Called when a window has been closed.
    void OnClickedCloseButton();
    /// Closes the window inside the frame when the frame is closed.
    void OnDlgCloseEvent();
    /// Closes the frame when its window requests it, or after the frame has been rejected.
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

    PAID_TYPE m_modalPaidType; // the type that was last passed to doModal()
    PAID_TYPE m_shownPaidType; // the type that was last passed to showWindow() or DoModal()
    QPointer<USSDDlg> m_pPrepaidDlg;
    QPointer<USSDDlg> m_pPostpaidDlg;
    QPointer<USSDGeneralDlg> m_pGeneralModalDlg;
    QPointer<USSDGeneralDlg> m_pGeneralEmbeddedDlg;
    QPointer<USSDExtendDialog> m_pPrepaidFrame;
    QPointer<USSDExtendDialog> m_pPostpaidFrame;
    QPointer<USSDExtendDialog> m_pGeneralFrame;
    QPointer<USSDExtendDialog> m_pUSSDSMSFrame;
    QPointer<CUSSDSMSDlg> m_pUSSDSMSDlg;
    QList<QPointer<USSDExtendDialog>> m_listDroppedFrames; // frames whose deletion is pending

    static CUSSDService *m_pInstance;
};

#endif
