#ifndef TKSV_INTERNAL_RADIOMODES_H
#define TKSV_INTERNAL_RADIOMODES_H

#include <libmm-glib/libmm-glib.h>
#include <vector>

#include "../base/Backend.h"

namespace Tksv
{

/// Returns ModemManager's value for a combination of TKSV_Mode values.
MMModemMode toModemMode(unsigned int modes);

/// Returns the current setting of the modem, and the setting that withOlderModes() suggests.
TKSV_ModesInfo modesOf(MMModem *modem);

/// Returns the best supported setting that allows 2G or 3G. Settings that keep all current
/// generations are preferred to all others. Among equally preferred settings, the setting with the
/// most generations is the best. Returns an empty setting if no supported setting allows 2G or 3G,
/// or if 2G or 3G is already allowed.
TKSV_Modes withOlderModes(const TKSV_Modes &current, const std::vector<TKSV_Modes> &supported);

} // namespace Tksv

#endif
