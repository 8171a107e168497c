#ifndef TKSV_INTERNAL_RADIOMODES_H
#define TKSV_INTERNAL_RADIOMODES_H

#include <libmm-glib/libmm-glib.h>
#include <vector>

#include "../base/Backend.h"

namespace Tksv
{

/// Returns ModemManager's value for a combination of TKSV_Mode values.
MMModemMode toModemMode(unsigned int modes);

/// Returns the current setting of the modem and the one that also allows 2G or 3G.
TKSV_ModesInfo modesOf(MMModem *modem);

/// Returns the supported setting that allows the most generations among those that allow 2G or 3G
/// in addition to the current ones. If there is none, it need not include the current ones. The
/// setting is empty if 2G or 3G is already allowed.
TKSV_Modes withOlderModes(const TKSV_Modes &current, const std::vector<TKSV_Modes> &supported);

} // namespace Tksv

#endif
