#include <QLocale>

#include <clocale>
#include <sys/stat.h>

#include "Arguments.h"
#include "base/DashboardText.h"
#include "base/LogFile.h"
#include "device/DashboardSettings.h"
#include "Languages.h"
#include "Program.h"
#include "TerminalText.h"
#include "window/LanguageProblem.h"

using namespace Dashboard;

namespace
{

const char ENGLISH[] = "en";
const mode_t OTHERS = S_IRWXG | S_IRWXO;

QStringList wordsOf(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words << QString::fromUtf8(argv[i]);
    return words;
}

/// Prints an error if the file of the wanted language or the English file is missing or damaged.
/// The message about the English file is hard-coded, because no strings are available without this
/// file. `state` is the state of the file of the wanted language.
void sayWhichTextsAreMissing(const QString &wanted, HostCore::Languages::FileState state)
{
    const QString english = QLatin1String(ENGLISH);
    const HostCore::Languages::FileState ofEnglish =
        wanted == english ? state : HostCore::Languages::fileState(english);
    if (ofEnglish == HostCore::Languages::Missing)
        HostCore::printErrorLine(HostCore::Languages::file(english) +
                                 QLatin1String(" is missing; keys stand in place of texts."));
    else if (ofEnglish == HostCore::Languages::Damaged)
        HostCore::printErrorLine(HostCore::Languages::file(english) +
                                 QLatin1String(" is damaged; keys stand in place of texts."));
    else if (!wanted.isEmpty() && state != HostCore::Languages::Whole)
        HostCore::printErrorLine(
            dashboardText(languageProblem(wanted)).arg(HostCore::Languages::file(wanted)));
}

/// Returns the language from the settings. If there is none, returns the language of the desktop if
/// it is supported, or English otherwise.
QString usualLanguage()
{
    const QString remembered = DashboardSettings().language();
    const QString code =
        remembered.isEmpty() ? HostCore::Languages::codeFor(QLocale::system().name()) : remembered;
    const HostCore::Languages::FileState state = HostCore::Languages::fileState(code);
    const bool isAbsent =
        state == HostCore::Languages::Missing || state == HostCore::Languages::NoSuchLanguage;
    // It is not an error if there is no file for the language of the desktop. However, there must
    // be a file for a language that was selected in the dashboard.
    sayWhichTextsAreMissing(isAbsent && remembered.isEmpty() ? QString() : code, state);
    return state == HostCore::Languages::Whole ? code : QLatin1String(ENGLISH);
}

/// Sets the language of the program. Returns false if the language on the command line is unknown
/// or if its file is missing or damaged.
bool chooseLanguage(Arguments *arguments)
{
    const QString &wanted = arguments->language;
    HostCore::Languages::setCurrent(usualLanguage());
    if (wanted.isEmpty() || HostCore::Languages::setCurrent(wanted))
        return true;
    const bool isKnown =
        HostCore::Languages::fileState(wanted) != HostCore::Languages::NoSuchLanguage;
    arguments->errorKey = isKnown ? languageProblem(wanted) : "CLI_UNKNOWN_LANGUAGE";
    arguments->errorSubject = isKnown ? HostCore::Languages::file(wanted)
                                      : HostCore::Languages::codes().join(QLatin1String(" "));
    return false;
}

/// Starts the log that the arguments request. Returns an error message if the log file cannot be
/// used.
QString startLog(const Arguments &arguments)
{
    if (arguments.verbose)
        HostCore::printErrorLine(dashboardText("LOG_HOLDS"));
    return arguments.logFile.isEmpty() ? QString() : LogFile::open(arguments.logFile);
}

int run(int &argc, char **argv, const Arguments &arguments)
{
    switch (arguments.mode) {
    case Arguments::Help:
        return Program::help();
    case Arguments::Version:
        return Program::version();
    case Arguments::Send:
        return Program::send(argc, argv, arguments);
    case Arguments::Tour:
        return Program::takeTour(argc, argv, arguments);
    case Arguments::Export:
        return Program::exportAccount(argc, argv, arguments);
    case Arguments::Window:
        break;
    }
    return Program::openWindow(argc, argv, arguments);
}

} // namespace

int main(int argc, char **argv)
{
    umask(OTHERS); // new files may contain codes and replies, so only the user may read them
    setlocale(LC_ALL, "");
    Arguments arguments = parseArguments(wordsOf(argc, argv));
    HostCore::installTerminalLog(arguments.verbose);
    if (!chooseLanguage(&arguments) || arguments.errorKey)
        return Program::complain(arguments);
    if (arguments.mode == Arguments::Send || arguments.mode == Arguments::Tour)
        Program::announceDemonstration(arguments);
    const QString unusableLog = startLog(arguments);
    if (!unusableLog.isEmpty()) {
        HostCore::printErrorLine(unusableLog);
        return EXIT_USAGE;
    }
    return run(argc, argv, arguments);
}
