#ifndef DAILYASKING_H
#define DAILYASKING_H

#include <QDateTime>
#include <QObject>
#include <QTimer>

#include <functional>

namespace Dashboard
{

class CommandMonitor;
class DashboardSettings;
class DeviceWatcher;

/**
 * Queries the balance once every 24 hours if the user has enabled this. The code is sent only while
 * the device and the user are idle, and only in the home network of the SIM. The 24 hours start
 * again whenever the code is sent, for example by the user, even if the query fails. All functions
 * must be called from the GUI thread.
 */
class DailyAsking : public QObject
{
    Q_OBJECT
public:
    static const int HOURS = 24;

    /// All arguments must outlive this object. If `settings` is null, the balance is never queried.
    DailyAsking(CommandMonitor *monitor, const DeviceWatcher *device, DashboardSettings *settings,
                QObject *parent = nullptr);

    /// Sets the code that queries the balance. If the code is empty, the balance is not queried.
    void setCode(const QString &code);
    /// Sets the function that returns false if sending the balance code would disturb the user, or
    /// if this code does not belong to the operator of the SIM.
    void setRule(const std::function<bool()> &mayAsk) { m_mayAsk = mayAsk; }
    /// Sets the function that converts an IMSI to the key of the SIM.
    void setSimKey(const std::function<QString(const QString &)> &key) { m_simKey = key; }
    /// Replaces the clock.
    void setClock(const std::function<QDateTime()> &clock) { m_clock = clock; }
    /// Deletes the times of all queries. The next query for the current SIM is due in 24 hours.
    void forget();

public slots:
    /// Queries the balance if a query is due and permitted. A timer calls this function regularly.
    void look();

private:
    bool isDue() const;
    bool mayAsk() const;
    void note();
    QString sim() const;

    CommandMonitor *const m_monitor;
    const DeviceWatcher *const m_device;
    DashboardSettings *const m_settings;
    QString m_code;
    std::function<bool()> m_mayAsk = [] { return true; };
    std::function<QString(const QString &)> m_simKey;
    std::function<QDateTime()> m_clock = QDateTime::currentDateTime;
    QTimer m_timer;
};

} // namespace Dashboard

#endif
