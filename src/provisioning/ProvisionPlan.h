#ifndef PROVISIONPLAN_H
#define PROVISIONPLAN_H

#include "ProviderDatabase.h"
#include "USSDProfile.h"

namespace Provisioning
{

/** A short message that the services window offers. */
struct PlannedMessage {
    QString textKey; // text key of the service's name; other strings are shown unchanged
    QString explanation;
    QString text;
    QString number;
};

/** The codes of an operator, arranged for the plug-in's windows. */
struct ProvisionPlan {
    QString country;
    QString provider;
    QString network; // MCC and MNC of the SIM; empty if unknown
    QString balance; // the code; empty if the operator does not have one
    QString topUp;   // the code with "%s"; empty if the operator does not have one
    QString ownNumber;
    QList<Formats::USSDProfile> profiles; // in the order of the profiles file
    QList<PlannedMessage> messages;
    QStringList imsiPrefixes; // in ascending order
    QStringList notes;        // descriptions of codes that the plug-in cannot use, in English

    /// Returns true if there is nothing to write.
    bool isEmpty() const { return profiles.isEmpty() && messages.isEmpty(); }
};

/// Arranges the operator's codes. The account window receives the first usable code of each kind,
/// and every code becomes a profile. `network` is the MCC and MNC of the SIM. It becomes an IMSI
/// prefix even if the database does not list it for the operator.
ProvisionPlan provisionPlan(const Provider &provider, const QString &network = QString());

} // namespace Provisioning

#endif
