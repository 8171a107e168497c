#ifndef MODECHOICE_H
#define MODECHOICE_H

#include <QObject>

#include "tksv_device.h"

namespace Dashboard
{

class DashboardSettings;
class DeviceWatcher;

/**
 * At the user's request, allows a modem that is restricted to 4G or later to use 2G and 3G as well,
 * or restores its former setting. The former setting is stored for each modem. All functions must
 * be called from the GUI thread.
 */
class ModeChoice : public QObject
{
    Q_OBJECT
public:
    /// Both arguments must outlive this object. If `settings` is null, the former setting is kept
    /// in memory.
    ModeChoice(const DeviceWatcher *device, DashboardSettings *settings, QObject *parent = nullptr);

    /// Returns true if the modem is restricted to 4G or later, but also supports 2G or 3G.
    bool canAllowOlder() const;
    /// Returns true if the modem's setting differs from the one that it had before allowOlder() was
    /// called.
    bool canRestore() const;

public slots:
    void allowOlder();
    void restore();

signals:
    /// Emitted when the return value of canAllowOlder() or canRestore() may have changed.
    void changed();
    /// Emitted when the modem has not accepted a setting.
    void failed();

private:
    void look();
    void change(const TKSV_Modes &modes);
    QString before() const;
    void setBefore(const QString &word);

    const DeviceWatcher *const m_device;
    DashboardSettings *const m_settings;
    QString m_before; // the former setting if it is only kept in memory
    bool m_isRestoring = false;
    bool m_hasFailed = false;
};

} // namespace Dashboard

#endif
