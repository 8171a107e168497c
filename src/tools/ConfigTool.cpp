#include "ConfigTool.h"

#include "FileCheck.h"
#include "TerminalText.h"

namespace Tools
{

namespace
{

const char HELP[] =
    "Usage: ussd-config check [--format=text|json] FILE...\n"
    "\n"
    "Reads configuration, layout, profile and scenario files as the plug-in and the\n"
    "simulated network do. Prints what will not work as written, and the values read.\n"
    "\n"
    "  --format=json   one JSON document, for scripts\n"
    "  --help, -h      print this text\n"
    "  --version       print the version\n"
    "\n"
    "Exit status: 0 no findings, 1 findings, 2 a file or the arguments cannot be\n"
    "used.";

int usage(const QString &text)
{
    HostCore::printErrorLine(QLatin1String("ussd-config: ") + text + QLatin1String("; see --help"));
    return TOOL_USAGE;
}

QString complaintAbout(const ToolArguments &arguments)
{
    if (!arguments.error.isEmpty())
        return arguments.error;
    if (arguments.words.value(0) != QLatin1String("check"))
        return QLatin1String("the first word must be \"check\"");
    if (arguments.words.count() < 2)
        return QLatin1String("there is no file to check");
    const QString format = arguments.value("--format");
    if (arguments.has("--format") && format != QLatin1String("json") &&
        format != QLatin1String("text"))
        return QLatin1String("--format must be text or json");
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
        reports << checkFile(arguments.words.at(i));
    if (arguments.value("--format") == QLatin1String("json")) {
        HostCore::printLine(reportsJson(reports));
        return statusOf(reports);
    }
    for (int i = 0; i < reports.count(); ++i)
        HostCore::printLine(reportText(reports.at(i)));
    return statusOf(reports);
}

} // namespace

int runConfigTool(const QStringList &words)
{
    const ToolArguments arguments =
        parseToolArguments(words,
                           QStringList() << QLatin1String("--help") << QLatin1String("-h")
                                         << QLatin1String("--version"),
                           QStringList() << QLatin1String("--format"));
    if (arguments.has("--help") || arguments.has("-h"))
        return HostCore::printLine(QLatin1String(HELP)), TOOL_GOOD;
    if (arguments.has("--version"))
        return HostCore::printLine(QLatin1String("ussd-config " USSD_VERSION)), TOOL_GOOD;
    const QString complaint = complaintAbout(arguments);
    return complaint.isEmpty() ? check(arguments) : usage(complaint);
}

} // namespace Tools
