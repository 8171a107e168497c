#ifndef DEVICEWATCHER_H
#define DEVICEWATCHER_H

#include <QObject>

#include "DeviceStatus.h"

/** Keeps the device's status up to date. GUI thread; one at a time, as the SDK has one call-back.
 */
class DeviceWatcher : public QObject
{
    Q_OBJECT
public:
    explicit DeviceWatcher(QObject *parent = nullptr);
    ~DeviceWatcher() override;

    const DeviceStatus &status() const { return m_status; }

public slots:
    /// Asks the device again, and tells when something is different.
    void refresh();

signals:
    void changed();
    /// The device went away or was reset; commands on their way ended with it.
    void lost();

private:
    // Both on a thread of the SDK.
    static void onInfoChanged(void *watcher);
    static unsigned char onDeviceEvent(int event, void *data);

    DeviceStatus m_status;
};

#endif
