#ifndef DASHBOARDSETTINGS_H
#define DASHBOARDSETTINGS_H

#include <QByteArray>
#include <QDateTime>
#include <QSettings>
#include <QString>

#include "DeviceChoice.h"

namespace Dashboard
{

/** The settings of the dashboard, which are stored in a file that only its owner can read. */
class DashboardSettings
{
public:
    DashboardSettings();
    /// Writes unsaved changes.
    ~DashboardSettings();

    QString language() const; // an ISO 639-1 code; empty if the user has never selected a language
    void setLanguage(const QString &code);
    /// Returns the device that the user last selected, or the automatic choice if the user has not
    /// selected any device. Also supports settings files of earlier versions, which stored only a
    /// scenario.
    DeviceChoice device() const;
    void setDevice(const DeviceChoice &choice);
    /// Returns the user's decision about the operator's codes for SIMs of the given home network
    /// (MCC and MNC), in the form in which the caller stored it. Returns an empty string if the
    /// user has not made a decision.
    QString operatorCodes(const QString &homeNetwork) const;
    void setOperatorCodes(const QString &homeNetwork, const QString &word);
    /// Returns true if the dashboard may query whether a SIM is prepaid or postpaid. The default is
    /// false.
    bool detectsPaidType() const;
    void setDetectsPaidType(bool detects);
    /// Returns "system" (default), "light" or "dark". This function and the following ones return
    /// the default value if the value in the file is invalid.
    QString theme() const;
    void setTheme(const QString &word);
    /// Returns the text size in per cent: 100 (default), 125, 150 or 200.
    int textSize() const;
    void setTextSize(int percent);
    bool reducesMotion() const; // false by default
    void setReducesMotion(bool reduces);
    /// Returns true (default) if desktop notifications are shown for messages from the network.
    bool notifiesMessages() const;
    void setNotifiesMessages(bool notifies);
    bool showsTextInNotifications() const; // false by default
    void setShowsTextInNotifications(bool shows);
    /// Returns the amount below which the user is notified of a low balance, for example "5.00".
    /// Returns an empty string (default) if there are no such notifications.
    QString lowBalance() const;
    void setLowBalance(const QString &amount);
    /// Returns true (default) if only the last four digits of the SIM's number are shown.
    bool hidesSimNumber() const;
    void setHidesSimNumber(bool hides);
    /// Returns true (default) if codes, balances and messages are stored.
    bool keepsHistory() const;
    void setKeepsHistory(bool keeps);
    /// Returns true if the user has finished or skipped the first run.
    bool isFirstRunDone() const; // false by default
    void setFirstRunDone(bool isDone);
    /// Returns true if the dashboard may query the balance once a day.
    bool asksDaily() const; // false by default
    void setAsksDaily(bool asks);
    /// Returns the time of the most recent balance query for the SIM, or an invalid time if there
    /// is none. `sim` is the key of the SIM; see SimKey.h.
    QDateTime lastAsked(const QString &sim) const;
    void setLastAsked(const QString &sim, const QDateTime &time);
    /// Deletes the times of the balance queries of all SIMs.
    void forgetLastAsked();
    /// Returns the network modes that the modem used before the dashboard changed them; see
    /// ModeChoice. Returns an empty string if the dashboard has not changed them.
    QString modesBefore(const QString &equipmentId) const;
    void setModesBefore(const QString &equipmentId, const QString &word);
    QByteArray geometry() const; // the geometry of the main window
    void setGeometry(const QByteArray &geometry);

    /// Returns true if changes can be written.
    bool isWritable() const { return m_settings.isWritable(); }
    /// Writes unsaved changes immediately. Returns true if all changes have been written.
    bool save();
    QString file() const { return m_settings.fileName(); }

private:
    bool flag(const char *key, bool defaultValue) const;
    QString word(const char *key) const;
    void set(const char *key, const QVariant &value);

    QSettings m_settings;
};

} // namespace Dashboard

#endif
