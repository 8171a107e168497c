#include "Modem.h"

#include <vector>

#include "base/DashboardText.h"
#include "tksv_device.h"

namespace Dashboard
{

namespace
{

const int TELLING_DIGITS = 4;
const QChar LEFT_TO_RIGHT_MARK(0x200e);

bool hasTwin(const Modem &modem, const QList<Modem> &all)
{
    for (const Modem &other : all) {
        if (other.name == modem.name && other.equipmentId != modem.equipmentId)
            return true;
    }
    return false;
}

Modem fromRecord(const TKSV_Modem &record)
{
    Modem modem;
    modem.equipmentId = QString::fromUtf8(record.equipmentId);
    modem.name = QString::fromUtf8(record.name);
    modem.isInUse = record.isInUse != 0;
    modem.state = record.state;
    return modem;
}

} // namespace

bool Modem::operator==(const Modem &other) const
{
    return equipmentId == other.equipmentId && name == other.name && isInUse == other.isInUse &&
           state == other.state;
}

QList<Modem> readModems()
{
    unsigned long count = 0;
    TKSV_Device_GetModems(nullptr, 0, &count);
    std::vector<TKSV_Modem> records(count);
    TKSV_Device_GetModems(records.data(), records.size(), &count);
    QList<Modem> modems;
    for (size_t i = 0; i < records.size() && i < count; ++i)
        modems << fromRecord(records[i]);
    return modems;
}

QString modemTitle(const Modem &modem, const QList<Modem> &all)
{
    if (modem.name.isEmpty())
        return dashboardText("NETWORK_UNNAMED_MODEM").arg(modem.equipmentId);
    if (!hasTwin(modem, all))
        return modem.name;
    return QString::fromUtf8("%1 (…%2)").arg(modem.name, modem.equipmentId.right(TELLING_DIGITS)) +
           LEFT_TO_RIGHT_MARK;
}

} // namespace Dashboard
