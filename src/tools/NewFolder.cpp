#include "NewFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "FileSteps.h"
#include "InputFile.h"
#include "InstallPaths.h"
#include "PluginFiles.h"
#include "PluginFolderChoice.h"
#include "ProviderChoice.h"
#include "ProvisionFiles.h"
#include "SampleNetwork.h"
#include "TerminalText.h"

using namespace Formats;
using namespace Provisioning;

namespace Tools
{

namespace
{

const char SCENARIO[] = "/network.scenario";
const char SAMPLE_SCENARIO[] = "/default.scenario";

/** The contents of the files to create. */
struct Contents {
    QByteArray configuration;
    QByteArray profiles;
    QByteArray scenario;
};

int fail(const QString &text, ToolExit status)
{
    HostCore::printErrorLine(QLatin1String("ussd-config: ") + text);
    return status;
}

QString shippedFile(QLatin1String name)
{
    return PluginFiles::path(HostCore::PluginFolderChoice::shipped(), name);
}

// ---- contents ------------------------------------------------------------------------------

/// Returns the contents of a file. If reading fails, sets `problem` unless it already contains an
/// earlier problem.
QByteArray contentOf(const QString &path, QString &problem)
{
    QByteArray content;
    QString reason;
    if (!InputFile::read(path, content, reason) && problem.isEmpty())
        problem = path + QLatin1String(": ") + reason;
    return content;
}

/// Returns the sample files of the plug-in, which describe a fictitious operator.
Contents sampleContents(QString &problem)
{
    Contents contents;
    contents.configuration = contentOf(shippedFile(PluginFiles::CONFIGURATION), problem);
    contents.profiles = contentOf(shippedFile(PluginFiles::SYSTEM_PROFILES), problem);
    contents.scenario =
        contentOf(HostCore::InstallPaths::scenarios() + QLatin1String(SAMPLE_SCENARIO), problem);
    return contents;
}

Contents operatorContents(const ProvisionPlan &plan, QString &problem)
{
    Contents contents;
    const QByteArray shipped = contentOf(shippedFile(PluginFiles::CONFIGURATION), problem);
    const ProvisionFiles files = provisionFiles(plan, shipped);
    if (problem.isEmpty())
        problem = files.error;
    contents.configuration = files.configuration;
    contents.profiles = files.profiles;
    contents.scenario = sampleNetwork(plan);
    return contents;
}

// ---- writing -------------------------------------------------------------------------------

bool writeFiles(const QString &folder, const Contents &contents, QString &problem)
{
    using namespace FileSteps;
    return makeFolder(folder + PluginFiles::FOLDER, problem) &&
           writeNew(PluginFiles::path(folder, PluginFiles::CONFIGURATION), contents.configuration,
                    problem) &&
           writeNew(PluginFiles::path(folder, PluginFiles::SYSTEM_PROFILES), contents.profiles,
                    problem) &&
           writeNew(folder + QLatin1String(SCENARIO), contents.scenario, problem);
}

/// Writes the files to a temporary folder and then renames it. The folder therefore never exists
/// with only some of its files. On failure, returns false and sets `problem`.
bool writeFolder(const QString &folder, const Contents &contents, QString &problem)
{
    const QString fresh =
        QString::fromLatin1("%1.new-%2").arg(folder).arg(QCoreApplication::applicationPid());
    if (writeFiles(fresh, contents, problem) && FileSteps::rename(fresh, folder, problem))
        return true;
    QDir(fresh).removeRecursively();
    return false;
}

/// Returns the reason why the folder cannot be created, or an empty string if it can.
QString obstacleTo(const QString &folder)
{
    const QFileInfo info(folder);
    if (!info.exists() && !info.isSymLink())
        return QString();
    const bool isEmptyFolder = info.isDir() && !info.isSymLink() && QDir(folder).isEmpty();
    return isEmptyFolder ? QString() : folder + QLatin1String(" exists already");
}

int write(const QString &folder, const Contents &contents)
{
    QString problem;
    if (!writeFolder(folder, contents, problem))
        return fail(problem, TOOL_BAD);
    HostCore::printLine(QLatin1String("written     ") + folder);
    HostCore::printLine(QLatin1String("to check    ussd-config check ") + shellWord(folder));
    HostCore::printLine(QString::fromLatin1("to try      USSD_PLUGIN_LIBRARY_PATH=%1 "
                                            "ussd-dashboard --scenario %2")
                            .arg(shellWord(folder), shellWord(folder + QLatin1String(SCENARIO))));
    return TOOL_GOOD;
}

// ---- the operator --------------------------------------------------------------------------

bool isNetwork(const QString &text)
{
    for (int i = 0; i < text.length(); ++i) {
        if (text.at(i) < QLatin1Char('0') || text.at(i) > QLatin1Char('9'))
            return false;
    }
    return text.length() == 5 || text.length() == 6;
}

ProviderQuery queryOf(const ToolArguments &arguments)
{
    ProviderQuery query;
    const QString name = arguments.value("--operator");
    (isNetwork(name) ? query.network : query.provider) = name;
    query.country = arguments.value("--country");
    return query;
}

int several(const ProviderChoice &choice)
{
    for (int i = 0; i < choice.candidates.count(); ++i) {
        const Provider &candidate = choice.candidates.at(i);
        HostCore::printErrorLine(
            QString::fromLatin1("  --operator %1 --country %2")
                .arg(shellWord(candidate.name()), shellWord(candidate.country)));
    }
    return fail(QLatin1String("several operators match; select one of those above"), TOOL_CHOOSE);
}

int createForOperator(const ToolArguments &arguments, const QString &folder)
{
    const QString path =
        arguments.has("--database") ? arguments.value("--database") : installedProviderDatabase();
    const ProviderDatabase database = readProviderDatabaseFile(path);
    if (!database.error.isEmpty())
        return fail(path + QLatin1String(": ") + database.error, TOOL_USAGE);
    const ProviderQuery query = queryOf(arguments);
    const ProviderChoice choice = chooseProvider(database, query);
    if (choice.state == ProviderChoice::Ambiguous)
        return several(choice);
    if (choice.state == ProviderChoice::None)
        return fail(QLatin1String("the database has no such operator"), TOOL_BAD);
    const ProvisionPlan plan = provisionPlan(choice.candidates.first(), query.network);
    if (plan.isEmpty())
        return fail(QString::fromLatin1("the database has no code of %1 that the plug-in can use")
                        .arg(plan.provider),
                    TOOL_BAD);
    QString problem;
    const Contents contents = operatorContents(plan, problem);
    if (!problem.isEmpty())
        return fail(problem, TOOL_BAD);
    HostCore::printLine(
        QString::fromLatin1("operator    %1 (%2)").arg(plan.provider, plan.country));
    return write(folder, contents);
}

int createSample(const QString &folder)
{
    QString problem;
    const Contents contents = sampleContents(problem);
    if (!problem.isEmpty())
        return fail(problem, TOOL_BAD);
    HostCore::printLine(QLatin1String("operator    an invented one; replace its codes before you "
                                      "use a real SIM card"));
    return write(folder, contents);
}

} // namespace

int createNewFolder(const ToolArguments &arguments)
{
    const QString folder = QDir::cleanPath(QDir().absoluteFilePath(arguments.words.value(1)));
    const QString obstacle = obstacleTo(folder);
    if (!obstacle.isEmpty())
        return fail(obstacle, TOOL_REFUSED);
    return arguments.has("--operator") ? createForOperator(arguments, folder)
                                       : createSample(folder);
}

QStringList newFolderOptions()
{
    return QStringList() << QLatin1String("--operator") << QLatin1String("--country")
                         << QLatin1String("--database");
}

} // namespace Tools
