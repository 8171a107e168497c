#include "ProviderChoice.h"

namespace Provisioning
{

namespace
{

const int LONGEST_NETWORK = 6;
const int SHORTEST_NETWORK = 5;
const int LONGEST_SIM_NAME = 64; // characters; longer names are truncated

QList<Provider> withNetwork(const QList<Provider> &providers, const QString &network)
{
    QList<Provider> found;
    for (int i = 0; i < providers.count(); ++i) {
        if (providers.at(i).networks.contains(network))
            found << providers.at(i);
    }
    return found;
}

QList<Provider> ofCountry(const QList<Provider> &providers, const QString &country)
{
    QList<Provider> found;
    for (int i = 0; i < providers.count(); ++i) {
        if (providers.at(i).country.compare(country, Qt::CaseInsensitive) == 0)
            found << providers.at(i);
    }
    return found;
}

bool isNamed(const Provider &provider, const QString &name)
{
    for (int i = 0; i < provider.names.count(); ++i) {
        if (isSameProviderName(provider.names.at(i).text, name))
            return true;
    }
    return false;
}

QList<Provider> named(const QList<Provider> &providers, const QString &name)
{
    QList<Provider> found;
    for (int i = 0; i < providers.count(); ++i) {
        if (isNamed(providers.at(i), name))
            found << providers.at(i);
    }
    return found;
}

/// Returns the name in a form for comparison: only letters and digits, in lower case and without
/// accents.
QString comparable(const QString &name)
{
    const QString parts = name.normalized(QString::NormalizationForm_KD).toCaseFolded();
    QString result;
    for (int i = 0; i < parts.length(); ++i) {
        if (parts.at(i).isLetterOrNumber())
            result += parts.at(i);
    }
    return result;
}

ProviderChoice choiceOf(const QList<Provider> &candidates)
{
    ProviderChoice choice;
    choice.candidates = candidates;
    if (!candidates.isEmpty())
        choice.state = candidates.count() == 1 ? ProviderChoice::Chosen : ProviderChoice::Ambiguous;
    return choice;
}

/// If several operators have the name that the user has selected, keeps only those that use the
/// network of the query. If none of them uses this network, keeps all of them.
ProviderChoice narrowed(QList<Provider> candidates, const ProviderQuery &query)
{
    if (candidates.count() > 1 && !query.network.isEmpty()) {
        const QList<Provider> fitting = withNetwork(candidates, query.network);
        if (!fitting.isEmpty())
            candidates = fitting;
    }
    return choiceOf(candidates);
}

/// Returns true if `simName` starts with the complete words of `name`. For example, "Telekom.de"
/// starts with "Telekom", but "Telekomik" does not.
bool beginsWithName(const QString &simName, const QString &name)
{
    for (int end = 1; end <= simName.length(); ++end) {
        const bool wordEnds = end == simName.length() || !simName.at(end).isLetterOrNumber();
        if (wordEnds && isSameProviderName(simName.left(end), name))
            return true;
    }
    return false;
}

QList<Provider> begun(const QList<Provider> &providers, const QString &simName)
{
    QList<Provider> found;
    for (int i = 0; i < providers.count(); ++i) {
        const QList<ProviderName> &names = providers.at(i).names;
        for (int n = 0; n < names.count(); ++n) {
            if (beginsWithName(simName.left(LONGEST_SIM_NAME), names.at(n).text)) {
                found << providers.at(i);
                break;
            }
        }
    }
    return found;
}

/// Uses the name stored on the SIM to narrow down the candidates. If this name only starts with a
/// candidate's name, the SIM may belong to a virtual operator, so the user must choose unless there
/// is only one candidate. If the name matches no candidate, the operator may be missing from the
/// database, and the user must always choose.
ProviderChoice proposed(const QList<Provider> &candidates, const QString &simName)
{
    if (comparable(simName).isEmpty())
        return choiceOf(candidates);
    const QList<Provider> same = named(candidates, simName);
    if (!same.isEmpty())
        return choiceOf(same);
    const QList<Provider> alike = begun(candidates, simName);
    ProviderChoice choice = choiceOf(alike.isEmpty() ? candidates : alike);
    const bool confirmed = candidates.count() == 1 && alike.count() == 1;
    if (choice.state == ProviderChoice::Chosen && !confirmed)
        choice.state = ProviderChoice::Ambiguous;
    return choice;
}

bool selects(const ProviderDatabase &database, const ProviderQuery &query, const Provider &provider)
{
    const ProviderChoice choice = chooseProvider(database, query);
    return choice.state == ProviderChoice::Chosen &&
           choice.candidates.first().line == provider.line &&
           choice.candidates.first().name() == provider.name();
}

bool isDigitsOnly(const QString &text)
{
    for (int i = 0; i < text.length(); ++i) {
        if (text.at(i) < QLatin1Char('0') || text.at(i) > QLatin1Char('9'))
            return false;
    }
    return true;
}

} // namespace

ProviderChoice chooseProvider(const ProviderDatabase &database, const ProviderQuery &query)
{
    QList<Provider> candidates = database.providers;
    if (query.network.isEmpty() && query.country.isEmpty() && query.provider.isEmpty())
        return ProviderChoice();
    if (!query.country.isEmpty())
        candidates = ofCountry(candidates, query.country);
    if (!query.provider.isEmpty())
        return narrowed(named(candidates, query.provider), query);
    if (!query.network.isEmpty())
        candidates = withNetwork(candidates, query.network);
    return proposed(candidates, query.simName);
}

ProviderQuery queryThatSelects(const ProviderDatabase &database, const Provider &provider,
                               const QString &network)
{
    const QStringList networks = QStringList(network) + provider.networks;
    ProviderQuery query;
    query.country = provider.country;
    for (int i = 0; i < networks.count(); ++i) {
        query.network = networks.at(i);
        for (int n = 0; n < provider.names.count(); ++n) {
            query.provider = provider.names.at(n).text;
            if (selects(database, query, provider))
                return query;
        }
    }
    return ProviderQuery();
}

QString networkOfImsi(const ProviderDatabase &database, const QString &imsi)
{
    for (int length = LONGEST_NETWORK; length >= SHORTEST_NETWORK; --length) {
        QString network = imsi.left(length);
        if (network.length() == length && isDigitsOnly(network) &&
            !withNetwork(database.providers, network).isEmpty())
            return network;
    }
    return QString();
}

bool isSameProviderName(const QString &a, const QString &b)
{
    const QString letters = comparable(a);
    return !letters.isEmpty() && letters == comparable(b);
}

} // namespace Provisioning
