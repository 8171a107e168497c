#ifndef DEVICEWATCHER_H
#define DEVICEWATCHER_H

#include <QObject>

#include <functional>

#include "DeviceStatus.h"
#include "Modem.h"
#include "Session.h"

namespace Dashboard
{

/** The status of the current device, and the modems that the user can select. */
struct DeviceReading {
    DeviceStatus status;
    QList<Modem> modems;
};

/**
 * Keeps the status of the device up to date. All functions must be called from the GUI thread. Only
 * one watcher may exist at a time, because the SDK accepts only one call-back.
 */
class DeviceWatcher : public QObject
{
    Q_OBJECT
public:
    explicit DeviceWatcher(QObject *parent = nullptr);
    ~DeviceWatcher() override;

    const DeviceStatus &status() const { return m_reading.status; }
    const QList<Modem> &modems() const { return m_reading.modems; }

    /// Replaces the source of the status, so that states of unavailable devices can be shown. A
    /// null function restores the default source, which is the device SDK.
    void readFrom(const std::function<DeviceReading()> &source);

public slots:
    /// Reads the status again and emits a signal if the status has changed.
    void refresh();

signals:
    void changed();
    /// Emitted when the state of the session or its newest request has changed; see readSession().
    void sessionChanged();
    /// Emitted when the device has been removed or reset. There are no pending commands at this
    /// time.
    void lost();

private:
    // Both call-backs are called from a thread of the SDK.
    static void onInfoChanged(void *watcher);
    static unsigned char onDeviceEvent(int event, void *data);
    void refreshSession();

    std::function<DeviceReading()> m_source;
    DeviceReading m_reading;
    Session m_session;
};

} // namespace Dashboard

#endif
