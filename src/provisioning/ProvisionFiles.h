#ifndef PROVISIONFILES_H
#define PROVISIONFILES_H

#include "ProvisionPlan.h"

namespace Provisioning
{

/** The contents of an operator's configuration file and profile file. */
struct ProvisionFiles {
    QByteArray configuration;
    QByteArray profiles; // identical to the file that the profile editor would save
    QString error;       // the reason for a failure; empty on success
};

/// Generates the files for a plan. `shipped` is the contents of the installed configuration file,
/// which provides the colours, sizes and options. All codes come from the plan.
ProvisionFiles provisionFiles(const ProvisionPlan &plan, const QByteArray &shipped);

} // namespace Provisioning

#endif
