#ifndef SAMPLENETWORK_H
#define SAMPLENETWORK_H

#include <QByteArray>

#include "ProvisionPlan.h"

namespace Tools
{

/// Returns a scenario file for the simulated network, which has a reply to every code of the plan.
/// The IMSI of its SIM card starts with the first prefix of the plan.
QByteArray sampleNetwork(const Provisioning::ProvisionPlan &plan);

} // namespace Tools

#endif
