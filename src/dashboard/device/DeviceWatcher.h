#ifndef DEVICEWATCHER_H
#define DEVICEWATCHER_H

#include <QObject>

#include <functional>

#include "DeviceStatus.h"
#include "Modem.h"

/** What there is to know of the device in use and of those that could be. */
struct DeviceReading {
    DeviceStatus status;
    QList<Modem> modems;
};

/** Keeps the device's status up to date. GUI thread; one at a time, as the SDK has one call-back.
 */
class DeviceWatcher : public QObject
{
    Q_OBJECT
public:
    explicit DeviceWatcher(QObject *parent = nullptr);
    ~DeviceWatcher() override;

    const DeviceStatus &status() const { return m_reading.status; }
    const QList<Modem> &modems() const { return m_reading.modems; }

    /// Where the status is read from; null: the device SDK, as at the start. For a show of devices
    /// that are not there.
    void readFrom(const std::function<DeviceReading()> &source);

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

    std::function<DeviceReading()> m_source;
    DeviceReading m_reading;
};

#endif
