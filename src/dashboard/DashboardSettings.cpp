#include "DashboardSettings.h"

#include <QFile>

namespace
{

const char NAME[] = "ussd-dashboard";
const char LANGUAGE[] = "language";
const char SCENARIO[] = "scenario";
const char GEOMETRY[] = "geometry";

} // namespace

DashboardSettings::DashboardSettings()
    : m_settings(QSettings::IniFormat, QSettings::UserScope, QLatin1String(NAME),
                 QLatin1String(NAME))
{
}

// The program's file mask keeps a new file private; this does it for one that was there.
DashboardSettings::~DashboardSettings()
{
    m_settings.sync();
    QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner);
}

QString DashboardSettings::language() const
{
    return m_settings.value(QLatin1String(LANGUAGE)).toString();
}

void DashboardSettings::setLanguage(const QString &code)
{
    set(LANGUAGE, code);
}

QString DashboardSettings::scenario() const
{
    return m_settings.value(QLatin1String(SCENARIO)).toString();
}

void DashboardSettings::setScenario(const QString &file)
{
    set(SCENARIO, file);
}

QByteArray DashboardSettings::geometry() const
{
    return m_settings.value(QLatin1String(GEOMETRY)).toByteArray();
}

void DashboardSettings::setGeometry(const QByteArray &geometry)
{
    set(GEOMETRY, geometry);
}

void DashboardSettings::set(const char *key, const QVariant &value)
{
    m_settings.setValue(QLatin1String(key), value);
}
