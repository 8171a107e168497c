#include "ProviderChoice.h"
#include "UssdTest.h"

using namespace Provisioning;

/// Tests which operators match a query, and whether one of them is selected automatically.
class ProviderChoiceTest : public UssdTest
{
    Q_OBJECT

private slots:
    void choices_data();
    void choices();
    void nothingAskedGivesNothing();
    void longerNetworkOfTheImsiWins();
    void namesAreComparedWithoutCaseAndAccents_data();
    void namesAreComparedWithoutCaseAndAccents();
};

namespace
{
Provider provider(const char *country, const char *name, const char *networks)
{
    Provider result;
    result.country = QLatin1String(country);
    ProviderName providerName;
    providerName.text = QString::fromUtf8(name);
    result.names << providerName;
    result.networks = QString::fromLatin1(networks).split(QLatin1Char(' '));
    return result;
}

ProviderDatabase sample()
{
    ProviderDatabase database;
    database.providers << provider("de", "Alpha", "26201 26206") << provider("de", "Beta", "26207")
                       << provider("de", "Beta Mobil", "26207") << provider("de", "Gamma", "26207")
                       << provider("at", "Beta", "23207") << provider("jp", "Twin", "44010")
                       << provider("jp", "Twin", "44020") << provider("us", "Long", "310260")
                       << provider("us", "Short", "31026");
    return database;
}

ProviderQuery query(const char *network, const char *simName, const char *country = "",
                    const char *name = "")
{
    ProviderQuery result;
    result.network = QLatin1String(network);
    result.simName = QString::fromUtf8(simName);
    result.country = QLatin1String(country);
    result.provider = QString::fromUtf8(name);
    return result;
}
} // namespace

Q_DECLARE_METATYPE(ProviderQuery)

void ProviderChoiceTest::choices_data()
{
    QTest::addColumn<ProviderQuery>("asked");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("names");
    const auto row = [](const char *title, const ProviderQuery &asked, int state,
                        const char *names) {
        QTest::newRow(title) << asked << state << QString::fromLatin1(names);
    };
    const int none = ProviderChoice::None;
    const int chosen = ProviderChoice::Chosen;
    const int ambiguous = ProviderChoice::Ambiguous;
    row("unknown network", query("99999", ""), none, "");
    row("network of one", query("26201", ""), chosen, "Alpha");
    row("network of several", query("26207", ""), ambiguous, "Beta/Beta Mobil/Gamma");
    row("SIM's name decides", query("26207", "BETA"), chosen, "Beta");
    row("SIM's longer name", query("26207", "beta-mobil"), chosen, "Beta Mobil");
    row("name that begins alike narrows", query("26207", "Gamma.de"), ambiguous, "Gamma");
    row("name of none", query("26207", "Omega"), ambiguous, "Beta/Beta Mobil/Gamma");
    row("name of another country", query("26201", "Beta"), ambiguous, "Alpha");
    row("one, and begins alike", query("26201", "Alpha.de"), chosen, "Alpha");
    row("one, but another word", query("26201", "Alphabet"), ambiguous, "Alpha");
    row("name without letters", query("26201", "--"), chosen, "Alpha");
    row("country and name", query("", "", "DE", "beta"), chosen, "Beta");
    row("name alone", query("", "", "", "beta"), ambiguous, "Beta/Beta");
    row("network tells namesakes apart", query("44020", "", "jp", "twin"), chosen, "Twin");
    row("namesakes", query("", "", "jp", "twin"), ambiguous, "Twin/Twin");
    row("named against the network", query("26201", "", "de", "gamma"), chosen, "Gamma");
    row("wrong country", query("26207", "", "at"), none, "");
    row("six digits", query("310260", ""), chosen, "Long");
}

void ProviderChoiceTest::choices()
{
    QFETCH(ProviderQuery, asked);
    QFETCH(int, state);
    QFETCH(QString, names);
    const ProviderChoice choice = chooseProvider(sample(), asked);
    QStringList found;
    for (const Provider &candidate : choice.candidates)
        found << candidate.name();
    QCOMPARE(found.join(QLatin1Char('/')), names);
    QCOMPARE(int(choice.state), state);
}

void ProviderChoiceTest::nothingAskedGivesNothing()
{
    QCOMPARE(chooseProvider(sample(), query("", "Beta")).state, ProviderChoice::None);
    QCOMPARE(chooseProvider(ProviderDatabase(), query("26207", "")).state, ProviderChoice::None);
}

void ProviderChoiceTest::longerNetworkOfTheImsiWins()
{
    const auto network = [](const char *imsi) {
        return networkOfImsi(sample(), QLatin1String(imsi));
    };
    QCOMPARE(network("310260123456789"), QString::fromLatin1("310260"));
    QCOMPARE(network("310261123456789"), QString::fromLatin1("31026"));
    QCOMPARE(network("262071234567890"), QString::fromLatin1("26207"));
    QCOMPARE(network("999991234567890"), QString());
    QCOMPARE(network("2620"), QString());
    QCOMPARE(network(""), QString());
}

void ProviderChoiceTest::namesAreComparedWithoutCaseAndAccents_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("same");
    const auto row = [](const char *a, const char *b, bool same) {
        QTest::newRow(b) << QString::fromUtf8(a) << QString::fromUtf8(b) << same;
    };
    row("T-Mobile", "t mobile", true);
    row("N\xc3\xb2verca", "Noverca", true);
    row("\xd0\x91\xd0\x98\xd0\x9b\xd0\x90\xd0\x99\xd0\x9d",
        "\xd0\x91\xd0\xb8\xd0\xbb\xd0\xb0\xd0\xb9\xd0\xbd", true);
    row("3", "Three", false);
    row("O2", "O", false);
    row("...", "---", false);
}

void ProviderChoiceTest::namesAreComparedWithoutCaseAndAccents()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(bool, same);
    QCOMPARE(isSameProviderName(a, b), same);
    QCOMPARE(isSameProviderName(b, a), same);
}

USSD_TEST_MAIN(ProviderChoiceTest)
#include "provider_choice_test.moc"
