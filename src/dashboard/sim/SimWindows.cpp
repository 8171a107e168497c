#include "SimWindows.h"

#include "IUSSD.h"

namespace Dashboard
{

int windowsForSim(IUSSD *ussd, const QString &imsi)
{
    if (!ussd->IsImsiDynamicMatch())
        return SIM_WINDOWS_ALL;
    int windows = 0;
    if (!imsi.isEmpty() && ussd->CheckImsiIsValid(imsi, windows))
        return windows;
    return SIM_WINDOW_GENERAL | SIM_WINDOW_SERVICES;
}

} // namespace Dashboard
