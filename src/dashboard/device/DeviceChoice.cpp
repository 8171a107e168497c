#include "DeviceChoice.h"

#include "Scenarios.h"
#include "tksv_device.h"

namespace Dashboard
{

namespace
{

const char AUTOMATIC[] = "automatic";
const char SIMULATED[] = "simulated:";
const char MODEM[] = "modem:";

DeviceChoice made(DeviceChoice::Kind kind, const QString &name)
{
    DeviceChoice choice;
    choice.kind = kind;
    choice.name = name;
    return choice;
}

} // namespace

DeviceChoice DeviceChoice::simulated(const QString &file)
{
    return made(Simulated, file);
}

DeviceChoice DeviceChoice::modem(const QString &equipmentId)
{
    return made(Modem, equipmentId);
}

QString DeviceChoice::word() const
{
    switch (kind) {
    case Simulated:
        return QLatin1String(SIMULATED) + name;
    case Modem:
        return QLatin1String(MODEM) + name;
    case Automatic:
        break;
    }
    return QLatin1String(AUTOMATIC);
}

DeviceChoice DeviceChoice::fromWord(const QString &word)
{
    const QString simulatedPrefix = QLatin1String(SIMULATED);
    const QString modemPrefix = QLatin1String(MODEM);
    if (word.startsWith(simulatedPrefix))
        return simulated(word.mid(simulatedPrefix.size()));
    if (word.startsWith(modemPrefix) && word.size() > modemPrefix.size())
        return modem(word.mid(modemPrefix.size()));
    return automatic();
}

QString DeviceChoice::use() const
{
    if (kind == Simulated)
        return Scenarios::use(name);
    if (kind == Modem)
        TKSV_Device_UseModem(name.toUtf8().constData());
    else
        TKSV_Device_UseAutomatic();
    return QString();
}

} // namespace Dashboard
