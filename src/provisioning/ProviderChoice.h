#ifndef PROVIDERCHOICE_H
#define PROVIDERCHOICE_H

#include "ProviderDatabase.h"

namespace Provisioning
{

/*
 * Functions that find the operator of a SIM. Because operators share networks, a network code may
 * match several candidates. A program uses the functions as follows:
 *
 *   query.network = networkOfImsi(database, imsi);   // or the SIM's MCC and MNC, if known
 *   query.simName = the operator's name that the SIM or the device reports;
 *   choice = chooseProvider(database, query);
 *   Chosen:    continue with provisionPlan(choice.candidates.first(), query.network);
 *   Ambiguous: ask the user once to choose one of choice.candidates or "none of them";
 *   None:      there is nothing to offer.
 */

/** The known properties of the operator to find. Empty properties are ignored. */
struct ProviderQuery {
    QString network;  // MCC and MNC without a separator, such as "26207"
    QString simName;  // service provider name (SPN) stored on the SIM
    QString country;  // ISO 3166-1 alpha-2
    QString provider; // the operator's name in any language, as selected by the user
};

struct ProviderChoice {
    enum State {
        None,     // no operator matches
        Chosen,   // exactly one operator matches
        Ambiguous // the user must choose, even if there is only one candidate
    };

    State state = None;
    QList<Provider> candidates; // exactly one operator if the state is Chosen
};

/// Returns the operators that match the query.
///
/// The selected name and the country must match. If a name is selected, the network is used only to
/// distinguish several candidates, and the SIM's name is ignored.
///
/// If no name is selected, the network must match as well. The SIM's name then selects a candidate
/// with the same name. If the SIM's name only starts with a candidate's name, for example
/// "Telekom.de" with "Telekom", the other candidates are discarded. The user must still choose,
/// unless there was only one candidate. If the SIM's name does not match any candidate, all
/// candidates are kept, and the user must choose even if there is only one.
ProviderChoice chooseProvider(const ProviderDatabase &database, const ProviderQuery &query);

/// Returns a query that selects only this operator from the database. The query contains the
/// country, a name and, if it is not empty, the network. If other operators have the same name and
/// network, another network of the operator is used. Returns an empty query if the operators cannot
/// be distinguished.
ProviderQuery queryThatSelects(const ProviderDatabase &database, const Provider &provider,
                               const QString &network);

/// Returns the network code of an IMSI. This is its first six digits if the database contains them
/// as a network code, or else its first five digits (3GPP TS 23.003). Returns an empty string if
/// the database contains neither.
QString networkOfImsi(const ProviderDatabase &database, const QString &imsi);

/// Returns true if the names are equal, ignoring case, accents, blanks and punctuation.
bool isSameProviderName(const QString &a, const QString &b);

} // namespace Provisioning

#endif
