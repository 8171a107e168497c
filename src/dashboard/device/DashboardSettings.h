#ifndef DASHBOARDSETTINGS_H
#define DASHBOARDSETTINGS_H

#include <QByteArray>
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
    /// Returns the device that the user selected last, or the automatic choice if the user has not
    /// selected a device. Also reads the key of earlier versions, which stored only a scenario.
    DeviceChoice device() const;
    void setDevice(const DeviceChoice &choice);
    /// Returns the user's decision about the operator's codes for SIMs of the given home network
    /// (MCC and MNC). The decision is the string that the caller has stored. Returns an empty
    /// string if the user has not made a decision.
    QString operatorCodes(const QString &homeNetwork) const;
    void setOperatorCodes(const QString &homeNetwork, const QString &word);
    /// Returns true if the user permits the dashboard to query whether a SIM is prepaid or
    /// postpaid.
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
