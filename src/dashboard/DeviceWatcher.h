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

private:
    static void onInfoChanged(void *watcher); // on a thread of the SDK

    DeviceStatus m_status;
};

#endif
