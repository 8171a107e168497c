#ifndef MODECHOICE_H
#define MODECHOICE_H

#include <QObject>

#include "tksv_device.h"

namespace Dashboard
{

class DashboardSettings;
class DeviceWatcher;

/**
 * Allows a modem that is held on 4G to use 2G and 3G as well, and restores its former setting.
 * Both happen only if the user requests it. The former setting is stored for each modem. All
 * functions must be called from the GUI thread.
 */
class ModeChoice : public QObject
{
    Q_OBJECT
public:
    /// Both arguments must outlive this object. If `settings` is null, the former setting is kept
    /// in memory.
    ModeChoice(const DeviceWatcher *device, DashboardSettings *settings, QObject *parent = nullptr);

    /// Returns true if the modem is held on 4G or later, and can use 2G or 3G as well.
    bool canAllowOlder() const;
    /// Returns true if the modem has another setting than before allowOlder().
    bool canRestore() const;

public slots:
    void allowOlder();
    void restore();

signals:
    /// Emitted when one of the return values may have changed.
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
    QString m_before; // the former setting, if it is not stored
    bool m_isRestoring = false;
    bool m_hasFailed = false;
};

} // namespace Dashboard

#endif
