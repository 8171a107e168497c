#ifndef DASHBOARDSETTINGS_H
#define DASHBOARDSETTINGS_H

#include <QByteArray>
#include <QSettings>
#include <QString>

#include "DeviceChoice.h"

namespace Dashboard
{

/** The settings of the dashboard. They are stored in a file that only its owner can read. */
class DashboardSettings
{
public:
    DashboardSettings();
    /// Writes unsaved changes.
    ~DashboardSettings();

    QString language() const; // an ISO 639-1 code; empty if the user has never chosen a language
    void setLanguage(const QString &code);
    /// Returns the device that was chosen most recently, or the automatic choice if no device was
    /// chosen. Also reads the key of earlier versions, which stored only a scenario.
    DeviceChoice device() const;
    void setDevice(const DeviceChoice &choice);
    /// Returns the user's decision about the operator's codes for SIMs of the given home network
    /// (MCC and MNC). The decision is the string that the caller has stored, or an empty string if
    /// there is no decision.
    QString operatorCodes(const QString &homeNetwork) const;
    void setOperatorCodes(const QString &homeNetwork, const QString &word);
    /// Returns true if the user lets the dashboard find out whether a SIM is prepaid or postpaid.
    bool detectsPaidType() const;
    void setDetectsPaidType(bool detects);
    QByteArray geometry() const; // the geometry of the main window
    void setGeometry(const QByteArray &geometry);

    /// Returns true if changes can be written.
    bool isWritable() const { return m_settings.isWritable(); }
    /// Writes unsaved changes immediately. Returns true if all changes were written.
    bool save();
    QString file() const { return m_settings.fileName(); }

private:
    void set(const char *key, const QVariant &value);

    QSettings m_settings;
};

} // namespace Dashboard

#endif
