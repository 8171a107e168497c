#include "ConfigTool.h"

#include "FileCheck.h"
#include "FileSchema.h"
#include "FormatFiles.h"
#include "NewFolder.h"
#include "TerminalText.h"

namespace Tools
{

namespace
{

const char HELP[] =
    "Usage: ussd-config check [--format=text|json] FILE|FOLDER...\n"
    "       ussd-config fmt [--check] FILE...\n"
    "       ussd-config new FOLDER [--operator NAME|MCCMNC [--country CC]]\n"
    "       ussd-config schema configuration|layout|profiles\n"
    "\n"
    "check reads configuration, layout, profile and scenario files as the plug-in and\n"
    "the simulated network do. Prints what will not work as written, and the values\n"
    "read. Of a folder, it reads the plug-in's files and the scenarios.\n"
    "\n"
    "fmt gives XML files a uniform layout, and keeps their comments and meaning.\n"
    "\n"
    "schema prints a RELAX NG schema for XML editors.\n"
    "\n"
    "new creates a folder with the files for one operator of the database, or for an\n"
    "invented operator, and a simulated network for trying them.\n"
    "\n"
    "  --format=json     one JSON document, for scripts\n"
    "  --check           only print the files that fmt would change\n"
    "  --operator NAME   the operator's name, or its network code, such as 26207\n"
    "  --country CC      the operator's country, such as de\n"
    "  --database FILE   the database of operators\n"
    "  --help, -h        print this text\n"
    "  --version         print the version\n"
    "\n"
    "Exit status: 0 done or no findings, 1 findings or a failure, 2 a file or the\n"
    "arguments cannot be used, 3 several operators match, 4 the folder exists.";

int usage(const QString &text)
{
    HostCore::printErrorLine(QLatin1String("ussd-config: ") + text + QLatin1String("; see --help"));
    return TOOL_USAGE;
}

/** A command of ussd-config. */
struct Command {
    const char *name;
    int (*run)(const ToolArguments &arguments);
    QString (*complaint)(const ToolArguments &arguments);
    QStringList (*options)();
};

QStringList checkOptions()
{
    return QStringList() << QLatin1String("--format");
}

QString complaintAboutCheck(const ToolArguments &arguments)
{
    if (arguments.words.count() < 2)
        return QLatin1String("there is no file to check");
    const QString format = arguments.value("--format");
    if (arguments.has("--format") && format != QLatin1String("json") &&
        format != QLatin1String("text"))
        return QLatin1String("--format must be text or json");
    return QString();
}

QStringList noOptions()
{
    return QStringList();
}

QStringList formatOptions()
{
    return QStringList() << QLatin1String("--check");
}

QString complaintAboutFormat(const ToolArguments &arguments)
{
    return QLatin1String(arguments.words.count() < 2 ? "there is no file to format" : "");
}

QString complaintAboutSchema(const ToolArguments &arguments)
{
    const bool isKnown =
        arguments.words.count() == 2 && schemaKinds().contains(arguments.words.at(1));
    return isKnown ? QString()
                   : QLatin1String("\"schema\" needs one of: ") +
                         schemaKinds().join(QLatin1String(", "));
}

int printSchema(const ToolArguments &arguments)
{
    const QByteArray schema = relaxNgSchema(arguments.words.at(1));
    HostCore::printLine(QString::fromUtf8(schema).trimmed());
    return TOOL_GOOD;
}

QString complaintAboutNew(const ToolArguments &arguments)
{
    if (arguments.words.count() != 2 || arguments.words.at(1).isEmpty())
        return QLatin1String("\"new\" needs the name of one folder");
    if (!arguments.has("--operator") && (arguments.has("--country") || arguments.has("--database")))
        return QLatin1String("--country and --database need --operator");
    return QString();
}

ToolExit statusOf(const QList<CheckReport> &reports)
{
    ToolExit status = TOOL_GOOD;
    for (int i = 0; i < reports.count(); ++i) {
        if (!reports.at(i).error.isEmpty())
            return TOOL_USAGE;
        if (!reports.at(i).findings.isEmpty())
            status = TOOL_BAD;
    }
    return status;
}

int check(const ToolArguments &arguments)
{
    QList<CheckReport> reports;
    for (int i = 1; i < arguments.words.count(); ++i)
        reports << checkPath(arguments.words.at(i));
    if (arguments.value("--format") == QLatin1String("json")) {
        HostCore::printLine(reportsJson(reports));
        return statusOf(reports);
    }
    for (int i = 0; i < reports.count(); ++i)
        HostCore::printLine(reportText(reports.at(i)));
    return statusOf(reports);
}

const Command COMMANDS[] = {
    {"check", check, complaintAboutCheck, checkOptions},
    {"fmt", formatFiles, complaintAboutFormat, formatOptions},
    {"new", createNewFolder, complaintAboutNew, newFolderOptions},
    {"schema", printSchema, complaintAboutSchema, noOptions},
};

const Command *commandOf(const ToolArguments &arguments)
{
    for (const Command &command : COMMANDS) {
        if (arguments.words.value(0) == QLatin1String(command.name))
            return &command;
    }
    return nullptr;
}

QString complaintAbout(const ToolArguments &arguments, const Command *command)
{
    if (!arguments.error.isEmpty())
        return arguments.error;
    if (!command)
        return QLatin1String("the first word must be \"check\", \"fmt\", \"new\" or \"schema\"");
    const QStringList given = arguments.options.keys();
    for (int i = 0; i < given.count(); ++i) {
        if (!command->options().contains(given.at(i)))
            return QString::fromLatin1("\"%1\" has no option %2")
                .arg(QLatin1String(command->name), given.at(i));
    }
    return command->complaint(arguments);
}

QStringList valueOptions()
{
    return checkOptions() << newFolderOptions();
}

} // namespace

int runConfigTool(const QStringList &words)
{
    const ToolArguments arguments =
        parseToolArguments(words,
                           QStringList() << QLatin1String("--help") << QLatin1String("-h")
                                         << QLatin1String("--version") << formatOptions(),
                           valueOptions());
    if (arguments.has("--help") || arguments.has("-h"))
        return HostCore::printLine(QLatin1String(HELP)), TOOL_GOOD;
    if (arguments.has("--version"))
        return HostCore::printLine(QLatin1String("ussd-config " USSD_VERSION)), TOOL_GOOD;
    const Command *command = commandOf(arguments);
    const QString complaint = complaintAbout(arguments, command);
    return complaint.isEmpty() ? command->run(arguments) : usage(complaint);
}

} // namespace Tools
