#ifndef IUSSD_H
#define IUSSD_H

#include <QRect>
#include <QString>
#include <QtPlugin>

class QWidget;

/** The windows of the plug-in. The values are part of the binary contract; 2 is not used. */
enum PAID_TYPE {
    PAID_TYPE_PREPAID = 0,  ///< account window for a prepaid SIM
    PAID_TYPE_POSTPAID = 1, ///< account window for a postpaid SIM
    PAID_TYPE_GENERAL = 3,  ///< general window: any code, and the user's own codes
    PAID_TYPE_NONE = 4,     ///< no window
    PAID_TYPE_USSD_SMS = 5  ///< window of the operator's services
};

/**
 * The USSD service, which QueryInterface() returns for PluginContract::USSD_SERVICE.
 *
 * USSD is defined by 3GPP TS 22.090. The order of the operations is part of the binary contract.
 * The host calls all of them on its GUI thread.
 */
class IUSSD
{
public:
    virtual ~IUSSD() {}

    /// Asks the network whether the SIM is prepaid or postpaid, when `ask` is true and the
    /// configuration wants it. The answer arrives later as
    /// PluginContract::MESSAGE_PRE_POST_INFO, by INotifyService.
    ///
    /// `inUse` is set to whether the configuration wants the network to be asked, `postpaid` to
    /// false, and `result` to 1 when the question was sent or to 0 when it was not. They keep
    /// their values when `ask` is false; `postpaid` and `result` do so too when `inUse` becomes
    /// false. Returns 1, or 0 when the plug-in cannot work.
    virtual int GetPrePostInfo(bool &inUse, bool &postpaid, int &result, bool ask) = 0;
    /// Shows the window `type` in a frame of its own that blocks the frame's parent, and returns
    /// without waiting for the user. Returns 1 when the frame was shown, otherwise 0.
    virtual int DoPrePostPaidModal(PAID_TYPE type) = 0;
    /// Shows the general window as a child of `parent`; every other `type` shows nothing. `rect`
    /// is the window's place in pixels, in the coordinates of `parent`. Always returns 0.
    virtual int ShowPrePostPaidWindow(QWidget *parent, QRect &rect, PAID_TYPE type) = 0;
    /// Returns whether the windows to offer depend on the IMSI of the SIM.
    virtual bool IsImsiDynamicMatch() = 0;
    /// Returns whether the configuration knows `imsi`, the digits of an IMSI (3GPP TS 23.003).
    /// Sets `flags` to the windows to offer for it: the sum of 1 prepaid, 2 postpaid, 4 common and
    /// 8 advanced (the general window), or 0 when the IMSI is not known.
    virtual bool CheckImsiIsValid(const QString &imsi, int &flags) = 0;
};

Q_DECLARE_INTERFACE(IUSSD, "com.zelvor.portalcompass.plugin.IUSSD")

#endif
