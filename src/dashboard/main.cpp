#include <QLocale>

#include <clocale>
#include <sys/stat.h>

#include "Arguments.h"
#include "DashboardSettings.h"
#include "DashboardText.h"
#include "LanguageProblem.h"
#include "Languages.h"
#include "LogFile.h"
#include "Program.h"
#include "TerminalText.h"

namespace
{

const char ENGLISH[] = "en";
const mode_t OTHERS = S_IRWXG | S_IRWXO;
const int CODE_LENGTH = 2; // of a language's code at the start of a locale's name

QStringList wordsOf(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words << QString::fromUtf8(argv[i]);
    return words;
}

/// Without the file of English there is no text to say it in.
void sayWhichTextsAreMissing(const QString &wanted)
{
    const QString english = QLatin1String(ENGLISH);
    const Languages::FileState state = Languages::fileState(english);
    if (state == Languages::Missing)
        printErrorLine(Languages::file(english) +
                       QLatin1String(" is missing; keys stand in place of texts."));
    else if (state == Languages::Damaged)
        printErrorLine(Languages::file(english) +
                       QLatin1String(" is damaged; keys stand in place of texts."));
    else if (!wanted.isEmpty() && Languages::fileState(wanted) != Languages::Whole)
        printErrorLine(dashboardText(languageProblem(wanted)).arg(Languages::file(wanted)));
}

/// The language that was remembered, else that of the desktop; English when there is neither.
QString usualLanguage()
{
    const QString remembered = DashboardSettings().language();
    const QString code =
        remembered.isEmpty() ? QLocale::system().name().left(CODE_LENGTH) : remembered;
    const Languages::FileState state = Languages::fileState(code);
    const bool isAbsent = state == Languages::Missing || state == Languages::NoSuchLanguage;
    // The desktop's language may be left out on purpose; one that was chosen here may not.
    sayWhichTextsAreMissing(isAbsent && remembered.isEmpty() ? QString() : code);
    return state == Languages::Whole ? code : QLatin1String(ENGLISH);
}

/// False when the command line names a language that there is none of, or whose file is no good.
bool chooseLanguage(Arguments *arguments)
{
    const QString &wanted = arguments->language;
    Languages::setCurrent(usualLanguage());
    if (wanted.isEmpty() || Languages::setCurrent(wanted))
        return true;
    const bool isKnown = Languages::fileState(wanted) != Languages::NoSuchLanguage;
    arguments->errorKey = isKnown ? languageProblem(wanted) : "CLI_UNKNOWN_LANGUAGE";
    arguments->errorSubject =
        isKnown ? Languages::file(wanted) : Languages::codes().join(QLatin1String(" "));
    return false;
}

/// Where the log lines go that hold codes and replies. Returns why they cannot go to the file.
QString startLog(const Arguments &arguments)
{
    if (arguments.verbose)
        printErrorLine(dashboardText("LOG_HOLDS"));
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
    case Arguments::Window:
        break;
    }
    return Program::openWindow(argc, argv, arguments);
}

} // namespace

int main(int argc, char **argv)
{
    umask(OTHERS); // what the program writes is its user's alone: codes and replies are private
    setlocale(LC_ALL, "");
    Arguments arguments = parseArguments(wordsOf(argc, argv));
    installTerminalLog(arguments.verbose);
    if (!chooseLanguage(&arguments) || arguments.errorKey)
        return Program::complain(arguments);
    const QString unusableLog = startLog(arguments);
    if (!unusableLog.isEmpty()) {
        printErrorLine(unusableLog);
        return EXIT_USAGE;
    }
    return run(argc, argv, arguments);
}
