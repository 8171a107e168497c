#include "RadioModes.h"

#include <bitset>
#include <tuple>

#include "GLibPointers.h"

namespace Tksv
{

namespace
{

const unsigned int ALL_MODES = TKSV_MODE_2G | TKSV_MODE_3G | TKSV_MODE_4G | TKSV_MODE_5G;

// MMModemMode has an additional first value, which is for circuit-switched data. Each of the other
// values is therefore twice the corresponding value of TKSV_Mode.
static_assert(MM_MODEM_MODE_2G == TKSV_MODE_2G << 1 && MM_MODEM_MODE_3G == TKSV_MODE_3G << 1 &&
              MM_MODEM_MODE_4G == TKSV_MODE_4G << 1 && MM_MODEM_MODE_5G == TKSV_MODE_5G << 1);

TKSV_Modes modesOf(MMModemMode allowed, MMModemMode preferred)
{
    return TKSV_Modes{(unsigned(allowed) >> 1) & ALL_MODES, (unsigned(preferred) >> 1) & ALL_MODES};
}

std::vector<TKSV_Modes> supportedModes(MMModem *modem)
{
    MMModemModeCombination *combinations = nullptr;
    guint count = 0;
    std::vector<TKSV_Modes> supported;
    if (!mm_modem_get_supported_modes(modem, &combinations, &count))
        return supported;
    for (guint i = 0; i < count; ++i)
        supported.push_back(modesOf(combinations[i].allowed, combinations[i].preferred));
    g_free(combinations);
    return supported;
}

int countOf(unsigned int modes)
{
    return int(std::bitset<8>(modes).count());
}

} // namespace

MMModemMode toModemMode(unsigned int modes)
{
    return MMModemMode((modes & ALL_MODES) << 1);
}

TKSV_Modes withOlderModes(const TKSV_Modes &current, const std::vector<TKSV_Modes> &supported)
{
    TKSV_Modes best = {};
    if (current.allowed == 0 || (current.allowed & OLDER_MODES))
        return best;
    const auto rank = [&current](const TKSV_Modes &modes) {
        const bool keepsCurrent = (modes.allowed & current.allowed) == current.allowed;
        const bool prefersOlder = modes.preferred & OLDER_MODES;
        return std::make_tuple(keepsCurrent, countOf(modes.allowed), !prefersOlder,
                               modes.preferred);
    };
    for (const TKSV_Modes &modes : supported) {
        if ((modes.allowed & OLDER_MODES) && (best.allowed == 0 || rank(best) < rank(modes)))
            best = modes;
    }
    return best;
}

TKSV_ModesInfo modesOf(MMModem *modem)
{
    MMModemMode allowed = MM_MODEM_MODE_NONE;
    MMModemMode preferred = MM_MODEM_MODE_NONE;
    TKSV_ModesInfo info = {};
    if (!mm_modem_get_current_modes(modem, &allowed, &preferred))
        return info;
    info.current = modesOf(allowed, preferred);
    info.withOlder = withOlderModes(info.current, supportedModes(modem));
    return info;
}

} // namespace Tksv
