#ifndef PROVIDERCHOICE_H
#define PROVIDERCHOICE_H

#include "ProviderDatabase.h"

namespace Provisioning
{

/*
 * Finds the operator of a SIM card. A network code alone may lead to several candidates, because
 * operators share networks. A program uses the functions as follows:
 *
 *   query.network = networkOfImsi(database, imsi);   // or the SIM's MCC and MNC, if known
 *   query.simName = the operator's name that the SIM or the device reports;
 *   choice = chooseProvider(database, query);
 *   Chosen:    continue with provisionPlan(choice.candidates.first(), query.network);
 *   Ambiguous: let the user choose one of choice.candidates or "none of them", once;
 *   None:      there is nothing to offer.
 */

/** The known properties of the operator. Empty properties are ignored. */
struct ProviderQuery {
    QString network;  // MCC and MNC without a separator, such as "26207"
    QString simName;  // service provider name (SPN) stored on the SIM
    QString country;  // ISO 3166-1 alpha-2
    QString provider; // the operator's name in any of its languages, as chosen by the user
};

struct ProviderChoice {
    enum State {
        None,     // no operator matches
        Chosen,   // exactly one operator matches
        Ambiguous // the user must choose, even if the only match has a different name
    };

    State state = None;
    QList<Provider> candidates; // contains one operator if the state is Chosen
};

/// Returns the operators that match the query.
///
/// The operator's name and the country must match. If the query does not contain the operator's
/// name, the network must match. Otherwise, the network only narrows down several candidates. The
/// SIM's name selects the candidate with the same name. A SIM's name such as "Telekom.de" narrows
/// down the candidates to those with the name "Telekom", but does not select one of several. If the
/// SIM's name does not match any candidate, all candidates remain and none is selected.
ProviderChoice chooseProvider(const ProviderDatabase &database, const ProviderQuery &query);

/// Returns a query that selects exactly this operator of the database. The query has the country, a
/// name and, if it is not empty, the network. If operators of the same name have this network, too,
/// the query has another network of the operator. Returns an empty query if nothing distinguishes
/// the operators.
ProviderQuery queryThatSelects(const ProviderDatabase &database, const Provider &provider,
                               const QString &network);

/// Returns the network code of an IMSI: its first six digits if the database contains this code, or
/// else its first five digits (3GPP TS 23.003). Returns an empty string if the database contains
/// neither.
QString networkOfImsi(const ProviderDatabase &database, const QString &imsi);

/// Returns true if two names are equal, ignoring case, accents, blanks and punctuation.
bool isSameProviderName(const QString &a, const QString &b);

} // namespace Provisioning

#endif
