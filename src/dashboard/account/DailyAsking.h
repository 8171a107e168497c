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
 * Asks for the balance once in 24 hours if the user has switched this on. It asks only while
 * nothing else goes on, and only in the home network of the SIM. A code that anybody has sent
 * counts, and so does an attempt that fails. All functions must be called from the GUI thread.
 */
class DailyAsking : public QObject
{
    Q_OBJECT
public:
    static const int HOURS = 24;

    /// All arguments must outlive this object. If `settings` is null, nothing is ever asked.
    DailyAsking(CommandMonitor *monitor, const DeviceWatcher *device, DashboardSettings *settings,
                QObject *parent = nullptr);

    /// Sets the code of the balance. If it is empty, nothing is asked.
    void setCode(const QString &code);
    /// Sets the function that returns false if a code would disturb the user or does not belong to
    /// the operator of the SIM.
    void setRule(const std::function<bool()> &mayAsk) { m_mayAsk = mayAsk; }
    /// Sets the function that returns the key of the SIM with this IMSI.
    void setSimKey(const std::function<QString(const QString &)> &key) { m_simKey = key; }
    /// Replaces the clock.
    void setClock(const std::function<QDateTime()> &clock) { m_clock = clock; }
    /// Forgets when each SIM was asked, except that the current SIM counts as asked now.
    void forget();

public slots:
    /// Asks if it is time to. Called regularly.
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
