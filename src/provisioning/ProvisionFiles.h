#ifndef PROVISIONFILES_H
#define PROVISIONFILES_H

#include "ProvisionPlan.h"

namespace Provisioning
{

/** The contents of the plug-in's two files for an operator. */
struct ProvisionFiles {
    QByteArray configuration;
    QByteArray profiles; // identical to the bytes that the plug-in's profile editor would save
    QString error;       // the reason why the files could not be generated; empty on success
};

/// Generates the files for a plan. `shipped` is the contents of the configuration file that is
/// installed with the plug-in. Colours, sizes and switches are taken from this file. Codes are
/// taken only from the plan.
ProvisionFiles provisionFiles(const ProvisionPlan &plan, const QByteArray &shipped);

} // namespace Provisioning

#endif
