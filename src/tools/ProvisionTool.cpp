#include "ProvisionTool.h"

#include <QDir>
#include <QFileInfo>

#include "InputFile.h"
#include "PluginFiles.h"
#include "PluginFolderChoice.h"
#include "ProviderChoice.h"
#include "ProvisionWriter.h"
#include "TerminalText.h"

using namespace Formats;
using namespace Provisioning;

namespace Tools
{

namespace
{

const char HELP[] =
    "Usage: ussd-provision --network CODE [--sim-name NAME] [OPTION...]\n"
    "       ussd-provision --country CC --provider NAME [OPTION...]\n"
    "       ussd-provision --list [--country CC] [--network CODE]\n"
    "\n"
    "Writes the plug-in's configuration and codes for one mobile operator.\n"
    "\n"
    "  --network CODE    country and network code of the SIM card, such as 26207\n"
    "  --sim-name NAME   the operator's name as stored on the SIM card\n"
    "  --country CC      the operator's country, such as de\n"
    "  --provider NAME   the operator's name\n"
    "  --folder DIR      the folder to write to; by default a folder of the user's\n"
    "  --set-aside       use new files even if the old ones were edited; the old ones\n"
    "                    are kept\n"
    "  --database FILE   the database of operators\n"
    "  --list            print the operators and their codes, write nothing\n"
    "  --help, -h        print this text\n"
    "  --version         print the version\n"
    "\n"
    "Exit status: 0 done, 1 failed, 2 wrong arguments or database, 3 several operators\n"
    "match and none was chosen, 4 edited files would be replaced.";

const int MOST_WAYS = 20; // maximum number of operators whose arguments are printed

QStringList list(const char *blankSeparated)
{
    return QString::fromLatin1(blankSeparated).split(QLatin1Char(' '));
}

int fail(const QString &text, ToolExit status)
{
    HostCore::printErrorLine(QLatin1String("ussd-provision: ") + text);
    return status;
}

bool isNetwork(const QString &text)
{
    for (int i = 0; i < text.length(); ++i) {
        if (text.at(i) < QLatin1Char('0') || text.at(i) > QLatin1Char('9'))
            return false;
    }
    return text.length() == 5 || text.length() == 6;
}

/// Returns an error message if the arguments are invalid or incomplete, otherwise an empty string.
QString complaintAbout(const ToolArguments &arguments)
{
    if (!arguments.error.isEmpty())
        return arguments.error;
    if (!arguments.words.isEmpty())
        return QString::fromLatin1("\"%1\" is not expected").arg(arguments.words.first());
    if (arguments.has("--network") && !isNetwork(arguments.value("--network")))
        return QLatin1String("--network needs five or six digits");
    const bool named = arguments.has("--country") && arguments.has("--provider");
    if (!arguments.has("--list") && !arguments.has("--network") && !named)
        return QLatin1String("--network is needed, or --country with --provider");
    return QString();
}

ProviderQuery queryOf(const ToolArguments &arguments)
{
    ProviderQuery query;
    query.network = arguments.value("--network");
    query.simName = arguments.value("--sim-name");
    query.country = arguments.value("--country");
    query.provider = arguments.value("--provider");
    return query;
}

// ---- printing ------------------------------------------------------------------------------

QString orDash(const QString &text)
{
    return text.isEmpty() ? QString(QLatin1Char('-')) : text;
}

/// Prints the properties of an operator, separated by tabs: country, name, balance, top-up, own
/// number and networks.
void printProvider(const Provider &provider)
{
    const ProvisionPlan plan = provisionPlan(provider);
    const QStringList columns = QStringList()
                                << provider.country << provider.name() << orDash(plan.balance)
                                << orDash(plan.topUp) << orDash(plan.ownNumber)
                                << orDash(provider.networks.join(QLatin1String(",")));
    HostCore::printLine(columns.join(QString(QLatin1Char('\t'))));
}

void printProviders(const QList<Provider> &providers)
{
    for (int i = 0; i < providers.count(); ++i)
        printProvider(providers.at(i));
}

void printPlan(const ProvisionPlan &plan)
{
    HostCore::printLine(QString::fromLatin1("balance     %1").arg(orDash(plan.balance)));
    HostCore::printLine(QString::fromLatin1("top-up      %1").arg(orDash(plan.topUp)));
    HostCore::printLine(QString::fromLatin1("own number  %1").arg(orDash(plan.ownNumber)));
    for (int i = 0; i < plan.messages.count(); ++i)
        HostCore::printLine(QLatin1String("message     ") + plan.messages.at(i).explanation);
    HostCore::printLine(QLatin1String("SIM cards   ") +
                        orDash(plan.imsiPrefixes.join(QLatin1String(" "))));
    for (int i = 0; i < plan.notes.count(); ++i)
        HostCore::printLine(QLatin1String("not used    ") + plan.notes.at(i));
}

void printComplaints(const QString &file, const ProviderDatabase &database)
{
    for (int i = 0; i < database.complaints.count(); ++i) {
        const ProviderComplaint &complaint = database.complaints.at(i);
        HostCore::printErrorLine(QString::fromLatin1("%1:%2:%3: %4")
                                     .arg(file)
                                     .arg(complaint.line)
                                     .arg(complaint.column)
                                     .arg(complaint.text));
    }
}

// ---- writing the folder --------------------------------------------------------------------

QString installedFolder()
{
    return HostCore::PluginFolderChoice::current() + PluginFiles::FOLDER + QLatin1Char('/');
}

/// Returns the folder for the operator. If the network code is unknown, the folder is named after
/// the operator.
QString folderOf(const ToolArguments &arguments, const ProvisionPlan &plan)
{
    if (arguments.has("--folder"))
        return QDir::cleanPath(QDir().absoluteFilePath(arguments.value("--folder")));
    if (!plan.network.isEmpty())
        return operatorFolder(operatorsFolder(), plan.network);
    QString name = plan.country + QLatin1Char('-') + plan.provider.toLower();
    for (int i = 0; i < name.length(); ++i) {
        if (!name.at(i).isLetterOrNumber())
            name[i] = QLatin1Char('-');
    }
    return operatorFolder(operatorsFolder(), name);
}

ProvisionOrder orderOf(const ToolArguments &arguments, const ProvisionPlan &plan)
{
    ProvisionOrder order;
    order.folder = folderOf(arguments, plan);
    order.setChangedAside = arguments.has("--set-aside");
    const QString plugin =
        QFileInfo(installedFolder() + QLatin1String("libUSSDUIPlugin.so")).canonicalFilePath();
    order.pluginLibrary = plugin;
    return order;
}

int report(const ProvisionOrder &order, const ProvisionPlan &plan, const ProvisionOutcome &outcome)
{
    if (outcome.state == ProvisionOutcome::Failed)
        return fail(outcome.problem, TOOL_BAD);
    if (outcome.state == ProvisionOutcome::Refused)
        return fail(outcome.problem + QLatin1String("; --folder chooses another folder, "
                                                    "--set-aside keeps those files aside"),
                    TOOL_REFUSED);
    const bool isNew = outcome.state == ProvisionOutcome::Written;
    HostCore::printLine(plan.provider + QLatin1String(" (") + plan.country +
                        QLatin1String(isNew ? "): written" : "): there already"));
    printPlan(plan);
    if (!outcome.keptFolder.isEmpty())
        HostCore::printLine(QLatin1String("kept        ") + outcome.keptFolder);
    else if (!outcome.changedFiles.isEmpty())
        HostCore::printLine(QLatin1String("changed     ") +
                            outcome.changedFiles.join(QLatin1String(" ")));
    HostCore::printLine(QLatin1String("USSD_PLUGIN_LIBRARY_PATH=") + order.folder);
    return TOOL_GOOD;
}

int provision(const ToolArguments &arguments, const Provider &provider)
{
    const ProvisionPlan plan = provisionPlan(provider, arguments.value("--network"));
    if (plan.isEmpty()) {
        printPlan(plan);
        return fail(QString::fromLatin1("the database has no code of %1 that the plug-in can use")
                        .arg(provider.name()),
                    TOOL_BAD);
    }
    const QString shipped = installedFolder() + PluginFiles::CONFIGURATION;
    QByteArray configuration;
    QString problem;
    if (!InputFile::read(shipped, configuration, problem))
        return fail(shipped + QLatin1String(": ") + problem, TOOL_BAD);
    const ProvisionFiles files = provisionFiles(plan, configuration);
    if (!files.error.isEmpty())
        return fail(shipped + QLatin1String(": ") + files.error, TOOL_BAD);
    const ProvisionOrder order = orderOf(arguments, plan);
    return report(order, plan, writeProvision(order, plan, files));
}

/// Prints, for each of the operators, the arguments that select it.
void printWaysToSelect(const ProviderDatabase &database, const QList<Provider> &candidates,
                       const QString &network)
{
    for (int i = 0; i < candidates.count() && i < MOST_WAYS; ++i) {
        const Provider &candidate = candidates.at(i);
        const ProviderQuery query = queryThatSelects(database, candidate, network);
        QString way = QString::fromLatin1("  --country %1 --provider %2")
                          .arg(shellWord(query.country), shellWord(query.provider));
        if (!query.network.isEmpty())
            way += QLatin1String(" --network ") + query.network;
        if (query.provider.isEmpty())
            way = QString::fromLatin1("  nothing distinguishes %1 (line %2) from another operator; "
                                      "change a copy of the database and name it with --database")
                      .arg(candidate.name())
                      .arg(candidate.line);
        HostCore::printErrorLine(way);
    }
    if (candidates.count() > MOST_WAYS)
        HostCore::printErrorLine(
            QString::fromLatin1("  and %1 more").arg(candidates.count() - MOST_WAYS));
}

int choose(const ToolArguments &arguments, const ProviderDatabase &database)
{
    const ProviderChoice choice = chooseProvider(database, queryOf(arguments));
    switch (choice.state) {
    case ProviderChoice::None:
        return fail(QLatin1String("the database has no such operator"), TOOL_BAD);
    case ProviderChoice::Ambiguous:
        printProviders(choice.candidates);
        fail(QLatin1String("several operators match; select one of them with"), TOOL_CHOOSE);
        printWaysToSelect(database, choice.candidates, arguments.value("--network"));
        return TOOL_CHOOSE;
    case ProviderChoice::Chosen:
        break;
    }
    return provision(arguments, choice.candidates.first());
}

int printList(const ToolArguments &arguments, const ProviderDatabase &database)
{
    const ProviderQuery query = queryOf(arguments);
    const bool all = query.network.isEmpty() && query.country.isEmpty() && query.provider.isEmpty();
    printProviders(all ? database.providers : chooseProvider(database, query).candidates);
    return TOOL_GOOD;
}

} // namespace

int runProvisionTool(const QStringList &words)
{
    const ToolArguments arguments =
        parseToolArguments(words, list("--list --set-aside --help -h --version"),
                           list("--network --sim-name --country --provider --folder --database"));
    if (arguments.has("--help") || arguments.has("-h"))
        return HostCore::printLine(QLatin1String(HELP)), TOOL_GOOD;
    if (arguments.has("--version"))
        return HostCore::printLine(QLatin1String("ussd-provision " USSD_VERSION)), TOOL_GOOD;
    const QString complaint = complaintAbout(arguments);
    if (!complaint.isEmpty())
        return fail(complaint + QLatin1String("; see --help"), TOOL_USAGE);
    const QString path =
        arguments.has("--database") ? arguments.value("--database") : installedProviderDatabase();
    const ProviderDatabase database = readProviderDatabaseFile(path);
    if (!database.error.isEmpty())
        return fail(path + QLatin1String(": ") + database.error, TOOL_USAGE);
    printComplaints(path, database);
    return arguments.has("--list") ? printList(arguments, database) : choose(arguments, database);
}

} // namespace Tools
