#ifndef PROVIDERCHOICE_H
#define PROVIDERCHOICE_H

#include "ProviderDatabase.h"

/*
 * Which operator a SIM card belongs to. A network code alone only proposes: several operators share
 * one. How a program uses it:
 *
 *   query.network = networkOfImsi(database, imsi);   // or the SIM's MCC and MNC, when known
 *   query.simName = the operator's name that the SIM or the device tells;
 *   choice = chooseProvider(database, query);
 *   Chosen:    go on with provisionPlan(choice.candidates.first(), query.network);
 *   Ambiguous: ask the user once which of choice.candidates it is, "none of them" included;
 *   None:      there is nothing to offer.
 */

/** What is known of the operator. Empty parts do not count. */
struct ProviderQuery {
    QString network;  // MCC and MNC in one word, such as "26207"
    QString simName;  // what the SIM calls its operator
    QString country;  // ISO 3166-1 alpha-2
    QString provider; // the operator's name, in any of its languages; a person chose it
};

struct ProviderChoice {
    enum State {
        None,     // no operator fits
        Chosen,   // exactly one
        Ambiguous // a person has to choose, also when the only one has another name than the SIM's
    };

    State state = None;
    QList<Provider> candidates; // one when chosen
};

/// The operator's name and country are conditions. The network narrows what they leave when several
/// fit, and is a condition when no name is given. The SIM's name decides when it is that of one
/// candidate; "Telekom.de" narrows them to those called "Telekom", but does not decide between
/// several. When it fits none of the candidates they all stay, and nothing is chosen.
ProviderChoice chooseProvider(const ProviderDatabase &database, const ProviderQuery &query);

/// The first six or five digits of the IMSI (3GPP TS 23.003), whichever the database knows; six
/// win. Empty when it knows neither.
QString networkOfImsi(const ProviderDatabase &database, const QString &imsi);

/// Whether two names mean the same: apart from case, accents, blanks and punctuation.
bool isSameProviderName(const QString &a, const QString &b);

#endif
