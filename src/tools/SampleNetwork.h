#ifndef SAMPLENETWORK_H
#define SAMPLENETWORK_H

#include <QByteArray>

#include "ProvisionPlan.h"

namespace Tools
{

/// Returns a scenario file for a simulated network that replies to every code of the plan. The IMSI
/// of its SIM starts with the first IMSI prefix of the plan.
QByteArray sampleNetwork(const Provisioning::ProvisionPlan &plan);

} // namespace Tools

#endif
