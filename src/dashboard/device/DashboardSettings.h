#ifndef DASHBOARDSETTINGS_H
#define DASHBOARDSETTINGS_H

#include <QByteArray>
#include <QSettings>
#include <QString>

#include "DeviceChoice.h"

/** What the dashboard remembers of the last time, in a file that only its user can read. */
class DashboardSettings
{
public:
    DashboardSettings();
    /// Writes what has changed.
    ~DashboardSettings();

    QString language() const; // a code; empty when never chosen
    void setLanguage(const QString &code);
    /// What was chosen last, automatic when nothing was. Earlier versions kept a scenario alone.
    DeviceChoice device() const;
    void setDevice(const DeviceChoice &choice);
    /// What was decided about the operator's codes for the SIMs of a home network (MCC and MNC): a
    /// word of the caller's; empty when nothing was.
    QString operatorCodes(const QString &homeNetwork) const;
    void setOperatorCodes(const QString &homeNetwork, const QString &word);
    QByteArray geometry() const; // of the main window
    void setGeometry(const QByteArray &geometry);

    /// Whether what is set can be written.
    bool isWritable() const { return m_settings.isWritable(); }
    /// Writes what has changed now. Whether all of it is written.
    bool save();
    QString file() const { return m_settings.fileName(); }

private:
    void set(const char *key, const QVariant &value);

    QSettings m_settings;
};

#endif
