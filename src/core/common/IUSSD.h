#ifndef IUSSD_H
#define IUSSD_H

#include <QRect>
#include <QString>
#include <QtPlugin>

class QWidget;

/** Which USSD window is meant. The values are part of the binary contract; 2 is not used. */
enum PAID_TYPE {
    PAID_TYPE_PREPAID = 0,
    PAID_TYPE_POSTPAID = 1,
    PAID_TYPE_GENERAL = 3,
    PAID_TYPE_NONE = 4,
    PAID_TYPE_USSD_SMS = 5
};

/**
 * The USSD service, which the plug-in hands out for the identifier 4097. The order of the
 * operations is part of the binary contract. All calls come on the GUI thread.
 */
class IUSSD
{
public:
    virtual ~IUSSD() {}

    /// Starts asking the network whether the SIM is prepaid or postpaid when `ask` is true. The
    /// first three say whether that is in use, whether the SIM is postpaid, and the outcome of the
    /// sending. The answer comes later by INotifyService, message 384.
    virtual int GetPrePostInfo(bool &inUse, bool &postpaid, int &result, bool ask) = 0;
    /// Shows a window in a frame of its own that blocks its parent, and returns at once.
    /// 1 when it was shown, 0 when not.
    virtual int DoPrePostPaidModal(PAID_TYPE type) = 0;
    /// Shows a window as a child of `parent`, at `rect` in its coordinates. Always 0.
    virtual int ShowPrePostPaidWindow(QWidget *parent, QRect &rect, PAID_TYPE type) = 0;
    /// Whether the windows offered depend on the SIM's IMSI.
    virtual bool IsImsiDynamicMatch() = 0;
    /// Whether the configuration knows this IMSI (3GPP TS 23.003), and which windows go with it:
    /// a set of 1 prepaid, 2 postpaid, 4 common, 8 advanced (the general window).
    virtual bool CheckImsiIsValid(const QString &imsi, int &flags) = 0;
};

Q_DECLARE_INTERFACE(IUSSD, "com.zelvor.portalcompass.plugin.IUSSD")

#endif
