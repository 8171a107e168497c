#ifndef PROVISIONFILES_H
#define PROVISIONFILES_H

#include "ProvisionPlan.h"

/** The plug-in's two files for one operator. */
struct ProvisionFiles {
    QByteArray configuration;
    QByteArray profiles; // byte for byte as the plug-in's editor would save them
    QString error;       // why they could not be made; empty when they were
};

/// `shipped` is the content of the configuration that is installed with the plug-in: colours, sizes
/// and switches are taken from it, and nothing that is an operator's.
ProvisionFiles provisionFiles(const ProvisionPlan &plan, const QByteArray &shipped);

#endif
