#ifndef IUSSD_H
#define IUSSD_H

#include <QRect>
#include <QString>
#include <QtPlugin>

class QWidget;

/**
 * The windows of the plug-in. The values are part of the binary interface. The value 2 is not used.
 */
enum PAID_TYPE {
    PAID_TYPE_PREPAID = 0,  ///< account window for a prepaid SIM
    PAID_TYPE_POSTPAID = 1, ///< account window for a postpaid SIM
    PAID_TYPE_GENERAL = 3,  ///< general window, for arbitrary codes and the user's profiles
    PAID_TYPE_NONE = 4,     ///< no window
    PAID_TYPE_USSD_SMS = 5  ///< window of the operator's services
};

/**
 * The USSD service, which QueryInterface() returns for PluginContract::USSD_SERVICE.
 *
 * USSD is defined in 3GPP TS 22.090. The order of the functions is part of the binary interface.
 * The host calls all functions from its GUI thread.
 */
class IUSSD
{
public:
    virtual ~IUSSD() {}

    /// If `ask` is true and the configuration enables the query, asks the network whether the SIM
    /// is prepaid or postpaid. The result is later sent to the host as
    /// PluginContract::MESSAGE_PRE_POST_INFO through INotifyService.
    ///
    /// If `ask` is true, `inUse` is set to true if the configuration enables the query, otherwise
    /// to false. If the query is enabled, `postpaid` is set to false, and `result` is set to 1 if
    /// the query was sent, otherwise to 0. In all other cases, the arguments keep their values.
    /// Returns 1 on success, or 0 if the plug-in is not usable.
    virtual int GetPrePostInfo(bool &inUse, bool &postpaid, int &result, bool ask) = 0;
    /// Shows the window `type` in a separate frame that is modal to the host's main window. Returns
    /// without waiting for the user. Returns 1 if the frame was shown, otherwise 0.
    virtual int DoPrePostPaidModal(PAID_TYPE type) = 0;
    /// Shows the general window as a child of `parent`. No window is shown if `type` is not
    /// PAID_TYPE_GENERAL. `rect` specifies the position and size of the window in pixels, in the
    /// coordinates of `parent`. Always returns 0.
    virtual int ShowPrePostPaidWindow(QWidget *parent, QRect &rect, PAID_TYPE type) = 0;
    /// Returns true if the configuration selects the windows by the IMSI of the SIM.
    virtual bool IsImsiDynamicMatch() = 0;
    /// Returns true if the configuration contains an entry for `imsi`, the digits of an IMSI (3GPP
    /// TS 23.003). Sets `flags` to the windows that are available for this SIM: the sum of 1
    /// (prepaid), 2 (postpaid), 4 (common) and 8 (advanced, which is the general window). Sets
    /// `flags` to 0 if there is no entry.
    virtual bool CheckImsiIsValid(const QString &imsi, int &flags) = 0;
};

Q_DECLARE_INTERFACE(IUSSD, "com.zelvor.portalcompass.plugin.IUSSD")

#endif
