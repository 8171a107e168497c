#include "DashboardSettings.h"

#include <QFile>

namespace Dashboard
{

namespace
{

const char NAME[] = "ussd-dashboard";
const char LANGUAGE[] = "language";
const char DEVICE[] = "device";
const char SCENARIO[] = "scenario"; // only earlier versions wrote this key
const char OPERATOR_CODES[] = "operator-codes/";
const char DETECTS_PAID_TYPE[] = "detect-paid-type";
const char GEOMETRY[] = "geometry";

/// Removes an incomplete lock file of Qt, which remains if a program is killed while it writes the
/// lock file. Otherwise, the next program would wait 30 s until Qt treats the lock as stale.
void removeUnfinishedLock(const QString &settingsFile)
{
    QFile lock(settingsFile + QLatin1String(".lock"));
    if (lock.open(QIODevice::ReadOnly) && !lock.readAll().endsWith('\n'))
        lock.remove();
}

} // namespace

DashboardSettings::DashboardSettings()
    : m_settings(QSettings::IniFormat, QSettings::UserScope, QLatin1String(NAME),
                 QLatin1String(NAME))
{
    removeUnfinishedLock(file());
}

// Makes the file private. The program's file mode mask affects only new files.
DashboardSettings::~DashboardSettings()
{
    m_settings.sync();
    QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner);
}

bool DashboardSettings::save()
{
    m_settings.sync();
    return m_settings.status() != QSettings::AccessError;
}

QString DashboardSettings::language() const
{
    return m_settings.value(QLatin1String(LANGUAGE)).toString();
}

void DashboardSettings::setLanguage(const QString &code)
{
    set(LANGUAGE, code);
}

DeviceChoice DashboardSettings::device() const
{
    const QString word = m_settings.value(QLatin1String(DEVICE)).toString();
    const QString file = m_settings.value(QLatin1String(SCENARIO)).toString();
    if (word.isEmpty() && !file.isEmpty())
        return DeviceChoice::simulated(file);
    return DeviceChoice::fromWord(word);
}

void DashboardSettings::setDevice(const DeviceChoice &choice)
{
    set(DEVICE, choice.word());
    m_settings.remove(QLatin1String(SCENARIO));
}

QString DashboardSettings::operatorCodes(const QString &homeNetwork) const
{
    return m_settings.value(QLatin1String(OPERATOR_CODES) + homeNetwork).toString();
}

void DashboardSettings::setOperatorCodes(const QString &homeNetwork, const QString &word)
{
    m_settings.setValue(QLatin1String(OPERATOR_CODES) + homeNetwork, word);
}

bool DashboardSettings::detectsPaidType() const
{
    return m_settings.value(QLatin1String(DETECTS_PAID_TYPE)).toBool();
}

void DashboardSettings::setDetectsPaidType(bool detects)
{
    set(DETECTS_PAID_TYPE, detects);
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

} // namespace Dashboard
