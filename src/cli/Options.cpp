#include "Options.h"

#include <cmath>
#include <glib.h>
#include <memory>

#include "CommandText.h"

namespace Cli
{

namespace
{

const double SHORTEST_TIMEOUT = 0.1; // in seconds
const double LONGEST_TIMEOUT = 3600;

const char PARAMETERS[] = "COMMAND [ARGUMENT…]";
const char SUMMARY[] =
    "Sends USSD codes through a modem and prints the replies.\n"
    "\n"
    "Commands:\n"
    "  send CODE [ANSWER…]   Print the reply to a code, and answer its menus in turn\n"
    "  send -                Send each line of standard input as a code\n"
    "  run NAME [ANSWER…]    Send a favourite of the dashboard, and answer its menus in turn\n"
    "  run --list            Print the favourites\n"
    "  chat [CODE]           Answer menus at a prompt; Ctrl-D ends the session and the program\n"
    "  status                Print the state of the modem\n"
    "  modems                Print all modems\n"
    "  watch                 Print messages that the network sends of its own accord\n"
    "  cancel                End the session that is open on the modem";
const char DESCRIPTION[] =
    "Exit status: 0 done, 1 refused, 2 wrong usage, 3 no modem or not ready, 4 no answer in time,\n"
    "5 in use by another program, 6 not permitted, 7 a menu was not answered, 8 output not "
    "written,\n"
    "128 plus the number of the signal if a signal ended the program. See 'man ussd'.";

/** The values that GLib's option parser stores. */
struct Values {
    char *modem = nullptr;
    char *scenario = nullptr;
    char *timeout = nullptr;
    gboolean isDemo = FALSE;
    gboolean isJson = FALSE;
    gboolean isQuiet = FALSE;
    gboolean enablesModem = FALSE;
    gboolean endsForeignSession = FALSE;
    gboolean listsFavourites = FALSE;
    gboolean wantsHelp = FALSE;
    gboolean wantsVersion = FALSE;
    char **words = nullptr;
};

/**
 * A command with its name, the minimum and maximum number of its arguments, and the options that it
 * supports.
 */
struct CommandRow {
    const char *name;
    Command command;
    std::size_t fewestWords;
    std::size_t mostWords;
    bool takesJson;
    bool takesEnable;
    bool takesEndForeignSession;
    bool takesList;
};

const std::size_t ANY_NUMBER = SIZE_MAX;
const CommandRow COMMANDS[] = {
    {"send", Command::Send, 1, ANY_NUMBER, true, true, true, false},
    {"run", Command::Run, 1, ANY_NUMBER, true, true, true, true},
    {"chat", Command::Chat, 0, 1, false, true, true, false},
    {"status", Command::Status, 0, 0, true, false, false, false},
    {"modems", Command::Modems, 0, 0, true, false, false, false},
    {"watch", Command::Watch, 0, 0, true, true, false, false},
    {"cancel", Command::Cancel, 0, 0, true, false, false, false},
};

std::vector<GOptionEntry> entriesFor(Values &values)
{
    // The options are declared as file names, because GLib converts the type "string" from the
    // character set of the locale. Codes, however, are encoded in UTF-8 in every locale.
    return {
        {"modem", 'm', 0, G_OPTION_ARG_FILENAME, &values.modem,
         "Use the modem with this identifier (its IMEI, see 'ussd modems')", "ID"},
        {"timeout", 't', 0, G_OPTION_ARG_FILENAME, &values.timeout,
         "Wait this long for each reply, 30 by default", "SECONDS"},
        {"enable", 0, 0, G_OPTION_ARG_NONE, &values.enablesModem,
         "Switch the modem on if it is off", nullptr},
        {"end-foreign-session", 0, 0, G_OPTION_ARG_NONE, &values.endsForeignSession,
         "End the session of another program first", nullptr},
        {"json", 0, 0, G_OPTION_ARG_NONE, &values.isJson, "Print JSON, one object on each line",
         nullptr},
        {"list", 0, 0, G_OPTION_ARG_NONE, &values.listsFavourites, "Print the favourites", nullptr},
        {"quiet", 'q', 0, G_OPTION_ARG_NONE, &values.isQuiet, "Print errors, but no notices",
         nullptr},
        {"demo", 0, 0, G_OPTION_ARG_NONE, &values.isDemo, "Use a simulated network", nullptr},
        {"scenario", 0, 0, G_OPTION_ARG_FILENAME, &values.scenario,
         "Use the simulated network of this file", "FILE"},
        {"help", 'h', 0, G_OPTION_ARG_NONE, &values.wantsHelp, "Print this summary", nullptr},
        {"version", 0, 0, G_OPTION_ARG_NONE, &values.wantsVersion, "Print the version", nullptr},
        {G_OPTION_REMAINING, 0, 0, G_OPTION_ARG_FILENAME_ARRAY, &values.words, nullptr, nullptr},
        {nullptr, 0, 0, G_OPTION_ARG_NONE, nullptr, nullptr, nullptr},
    };
}

std::string take(char *text)
{
    const std::unique_ptr<char, decltype(&g_free)> owned(text, g_free);
    return text ? text : "";
}

std::string withoutLastLineEnd(std::string text)
{
    if (!text.empty() && text.back() == '\n')
        text.pop_back();
    return text;
}

std::vector<std::string> takeWords(char **words)
{
    std::vector<std::string> copies;
    for (char **word = words; word && *word; ++word)
        copies.emplace_back(*word);
    g_strfreev(words);
    return copies;
}

std::string quoted(const std::string &word)
{
    return "'" + word + "'";
}

/* ---- error messages ---------------------------------------------------------------------- */

const char READS_INPUT[] = "-"; // means that the codes are read from standard input

std::string problemOfWord(const std::string &word)
{
    if (word == READS_INPUT)
        return "'-' stands for codes from standard input, and only 'send -' takes it";
    const std::string problem = commandProblem(word);
    return problem.empty() ? problem : quoted(word) + " cannot be sent: " + problem;
}

std::string problemOfAnswer(const std::string &word)
{
    if (hasFormOfCode(word))
        return quoted(word) + " is a code and no answer; send each code with a command of its own";
    return problemOfWord(word);
}

std::string problemOfNumber(const CommandRow &row, const Options &options)
{
    const std::size_t fewest = options.listsFavourites ? 0 : row.fewestWords;
    const std::size_t most = options.listsFavourites ? 0 : row.mostWords;
    if (options.words.size() < fewest)
        return quoted(row.name) +
               (row.takesList ? " needs the name of a favourite" : " needs a code");
    if (options.words.size() > most)
        return quoted(row.name) + " takes no argument " + quoted(options.words[most]);
    return std::string();
}

std::string problemOfWords(const CommandRow &row, const Options &options)
{
    const std::vector<std::string> &words = options.words;
    std::string problem = problemOfNumber(row, options);
    if (row.command == Command::Send && words.size() == 1 && words.front() == READS_INPUT)
        return problem;
    // The first argument of `run` is the name of a favourite, which may contain any characters.
    for (std::size_t i = row.takesList ? 1 : 0; i < words.size() && problem.empty(); ++i)
        problem = i == 0 ? problemOfWord(words[i]) : problemOfAnswer(words[i]);
    return problem;
}

std::string problemOfOptions(const CommandRow &row, const Options &options)
{
    const std::string command = " does not apply to " + quoted(row.name);
    if (options.isJson && !row.takesJson)
        return "--json" + command;
    if (options.enablesModem && !row.takesEnable)
        return "--enable" + command;
    if (options.endsForeignSession && !row.takesEndForeignSession)
        return "--end-foreign-session" + command;
    if (options.listsFavourites && !row.takesList)
        return "--list" + command;
    if (!options.modem.empty() && (options.isDemo || !options.scenario.empty()))
        return "--modem cannot be combined with --demo or --scenario";
    return std::string();
}

/* ---- reading the values ------------------------------------------------------------------ */

std::string readTimeout(const std::string &text, Milliseconds &timeout)
{
    char *end = nullptr;
    const double seconds = g_ascii_strtod(text.c_str(), &end);
    const bool isNumber = !text.empty() && !*end && std::isfinite(seconds);
    if (!isNumber || seconds < SHORTEST_TIMEOUT || seconds > LONGEST_TIMEOUT)
        return "--timeout " + quoted(text) + ": expected seconds, from 0.1 to 3600";
    timeout = Milliseconds(std::lround(seconds * 1000));
    return std::string();
}

std::string readCommand(Options &options)
{
    if (options.words.empty())
        return "a command is missing";
    const std::string name = options.words.front();
    options.words.erase(options.words.begin());
    for (const CommandRow &row : COMMANDS) {
        if (name != row.name)
            continue;
        options.command = row.command;
        const std::string problem = problemOfOptions(row, options);
        return problem.empty() ? problemOfWords(row, options) : problem;
    }
    return "there is no command " + quoted(name);
}

/// Converts the parsed values to `options`. Returns an empty string on success, otherwise an error
/// message.
std::string readValues(Values &values, Options &options)
{
    const bool hasTimeout = values.timeout != nullptr;
    const bool hasEmptyName =
        (values.modem && !*values.modem) || (values.scenario && !*values.scenario);
    options.modem = take(values.modem);
    options.scenario = take(values.scenario);
    const std::string timeout = take(values.timeout);
    options.words = takeWords(values.words);
    options.isDemo = values.isDemo;
    options.isJson = values.isJson;
    options.isQuiet = values.isQuiet;
    options.enablesModem = values.enablesModem;
    options.endsForeignSession = values.endsForeignSession;
    options.listsFavourites = values.listsFavourites;
    if (values.wantsHelp || values.wantsVersion) {
        options.command = values.wantsHelp ? Command::Help : Command::Version;
        return std::string();
    }
    if (hasEmptyName)
        return options.modem.empty() && values.modem ? "--modem needs an identifier"
                                                     : "--scenario needs a file";
    const std::string problem = hasTimeout ? readTimeout(timeout, options.timeout) : std::string();
    return problem.empty() ? readCommand(options) : problem;
}

} // namespace

Options parseOptions(int argc, char **argv)
{
    Options options;
    Values values;
    const std::vector<GOptionEntry> entries = entriesFor(values);
    const std::unique_ptr<GOptionContext, decltype(&g_option_context_free)> context(
        g_option_context_new(PARAMETERS), g_option_context_free);
    // The program prints the help itself. GLib would print it and exit immediately.
    g_option_context_set_help_enabled(context.get(), FALSE);
    g_option_context_set_summary(context.get(), SUMMARY);
    g_option_context_set_description(context.get(), DESCRIPTION);
    g_option_context_add_main_entries(context.get(), entries.data(), nullptr);
    GError *error = nullptr;
    if (!g_option_context_parse(context.get(), &argc, &argv, &error)) {
        options.error = error->message;
        g_error_free(error);
        return options;
    }
    options.error = readValues(values, options);
    if (options.error.empty() && options.command == Command::Help)
        options.help =
            withoutLastLineEnd(take(g_option_context_get_help(context.get(), TRUE, nullptr)));
    return options;
}

} // namespace Cli
