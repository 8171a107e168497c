#ifndef PROVISIONPLAN_H
#define PROVISIONPLAN_H

#include "ProviderDatabase.h"
#include "USSDProfile.h"

/** A short message that comes as a service of the services window. */
struct PlannedMessage {
    QString textKey; // of the service; a text that is no key is shown as it is
    QString explanation;
    QString text;
    QString number;
};

/** What the plug-in is told about one operator. */
struct ProvisionPlan {
    QString country;
    QString provider;
    QString network; // the SIM's that it was made for; empty when unknown
    QString balance; // code; empty: the operator has none, also the two below
    QString topUp;   // with "%s"
    QString ownNumber;
    QList<USSDProfile> profiles; // in the order of the file
    QList<PlannedMessage> messages;
    QStringList imsiPrefixes; // in ascending order
    QStringList notes;        // what the database has but the plug-in cannot use, in English

    /// Whether there is anything to write.
    bool isEmpty() const { return profiles.isEmpty() && messages.isEmpty(); }
};

/// The first usable code of each kind goes into the account window, all of them become profiles.
/// `network` is the SIM's; it becomes an IMSI prefix also when the database does not know it.
ProvisionPlan provisionPlan(const Provider &provider, const QString &network = QString());

#endif
