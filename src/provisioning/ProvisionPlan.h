#ifndef PROVISIONPLAN_H
#define PROVISIONPLAN_H

#include "ProviderDatabase.h"
#include "USSDProfile.h"

namespace Provisioning
{

/** A short message that can be sent from the services window. */
struct PlannedMessage {
    QString textKey; // text key of the service's name, or the name itself
    QString explanation;
    QString text;
    QString number;
};

/** An operator's codes, assigned to the windows of the plug-in. */
struct ProvisionPlan {
    QString country;
    QString provider;
    QString network; // MCC and MNC of the SIM; empty if unknown
    QString balance; // the balance code; empty if there is none
    QString topUp;   // the top-up code, with "%s"; empty if there is none
    QString ownNumber;
    QList<Formats::USSDProfile> profiles; // in the order of the profile file
    QList<PlannedMessage> messages;
    QStringList imsiPrefixes; // sorted in ascending order
    QStringList notes;        // notes in English about codes that the plug-in does not support

    /// Returns true if the plan contains neither profiles nor messages.
    bool isEmpty() const { return profiles.isEmpty() && messages.isEmpty(); }
};

/// Assigns the operator's codes to the windows. The account window receives the first suitable code
/// of each kind, and every code becomes a profile. `network` is the MCC and MNC of the SIM. It
/// becomes an IMSI prefix even if the database does not contain it for this operator.
ProvisionPlan provisionPlan(const Provider &provider, const QString &network = QString());

} // namespace Provisioning

#endif
