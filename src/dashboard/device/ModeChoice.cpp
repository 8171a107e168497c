#include "ModeChoice.h"

#include <utility>

#include "DashboardSettings.h"
#include "DeviceWatcher.h"

namespace Dashboard
{

namespace
{

const QLatin1Char SEPARATOR(',');

/// Returns the network modes as the string to store, for example "4,0".
QString wordOf(const TKSV_Modes &modes)
{
    return QString::number(modes.allowed) + SEPARATOR + QString::number(modes.preferred);
}

TKSV_Modes modesOf(const QString &word)
{
    return TKSV_Modes{word.section(SEPARATOR, 0, 0).toUInt(),
                      word.section(SEPARATOR, 1, 1).toUInt()};
}

} // namespace

ModeChoice::ModeChoice(const DeviceWatcher *device, DashboardSettings *settings, QObject *parent)
    : QObject(parent), m_device(device), m_settings(settings)
{
    connect(device, &DeviceWatcher::changed, this, &ModeChoice::look);
}

bool ModeChoice::canAllowOlder() const
{
    return m_device->status().modes.withOlder.allowed != 0;
}

bool ModeChoice::canRestore() const
{
    const TKSV_Modes &current = m_device->status().modes.current;
    const QString word = before();
    return current.allowed != 0 && modesOf(word).allowed != 0 && word != wordOf(current);
}

void ModeChoice::allowOlder()
{
    if (!canAllowOlder())
        return;
    setBefore(wordOf(m_device->status().modes.current));
    m_isRestoring = false;
    change(m_device->status().modes.withOlder);
}

void ModeChoice::restore()
{
    if (!canRestore())
        return;
    m_isRestoring = true;
    change(modesOf(before()));
}

void ModeChoice::change(const TKSV_Modes &modes)
{
    m_hasFailed = false; // reset, so that a second failure is also reported
    if (TKSV_Device_SetModes(&modes) != 0)
        emit failed();
}

/// Deletes the stored former setting when the modem uses this setting again. Emits failed() if the
/// modem has not accepted a setting.
void ModeChoice::look()
{
    const TKSV_ModesInfo &modes = m_device->status().modes;
    if (m_isRestoring && wordOf(modes.current) == before()) {
        m_isRestoring = false;
        setBefore(QString());
    }
    const bool hasFailed = modes.hasFailed != 0;
    if (hasFailed && !std::exchange(m_hasFailed, hasFailed))
        emit failed();
    emit changed();
}

/// Returns the former setting. In a demonstration, it is only kept in memory.
QString ModeChoice::before() const
{
    const DeviceStatus &status = m_device->status();
    const bool isStored = m_settings && !status.isSimulated;
    return isStored ? m_settings->modesBefore(status.equipmentId) : m_before;
}

void ModeChoice::setBefore(const QString &word)
{
    const DeviceStatus &status = m_device->status();
    if (m_settings && !status.isSimulated)
        m_settings->setModesBefore(status.equipmentId, word);
    else
        m_before = word;
}

} // namespace Dashboard
