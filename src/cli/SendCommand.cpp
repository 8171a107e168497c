#include "Commands.h"
#include "CommandText.h"
#include "ExitCodes.h"
#include "LineReader.h"
#include "Program.h"

namespace Cli
{

namespace
{

const char NOT_ANSWERED[] = "The menu was not answered, and the session was ended.";

using Words = std::vector<std::string>;

/// Prints the message and the unsent answers, which start at index `first`.
void reportUnsent(Program &program, std::string message, const Words &words, std::size_t first)
{
    for (std::size_t i = first; i < words.size(); ++i)
        message += (i == first ? "Not sent: " : " ") + words[i];
    if (!message.empty())
        program.output().error(message);
}

/// Ends the session if a menu is open, and returns the exit code.
int closeMenu(Program &program, Conversation &conversation)
{
    if (!conversation.isMenuOpen())
        return EXIT_DONE;
    conversation.end();
    program.output().error(NOT_ANSWERED);
    return EXIT_MENU_OPEN;
}

/// Sends a code, and then the answers to its menus. Stops after the first failure.
int sendWords(Program &program, Conversation &conversation, const Words &words)
{
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0 && !conversation.isMenuOpen()) {
            reportUnsent(program, "There is no menu to answer. ", words, i);
            return EXIT_REFUSED;
        }
        const Program::Kind kind = i == 0 ? Program::Kind::Code : Program::Kind::Answer;
        const int result = program.send(conversation, words[i], kind);
        if (result != EXIT_DONE || program.output().hasFailed()) {
            reportUnsent(program, std::string(), words, i + 1);
            return result;
        }
    }
    return closeMenu(program, conversation);
}

/// Sends the code in line `number`. Returns EXIT_WRONG_USAGE if it is not a valid code.
int sendLine(Program &program, Conversation &conversation, const std::string &code, int number)
{
    const std::string line = "Line " + std::to_string(number);
    const std::string problem = commandProblem(code);
    if (!problem.empty())
        program.output().error(line + " cannot be sent: " + problem + ".");
    const int result =
        problem.empty() ? sendWords(program, conversation, {code}) : EXIT_WRONG_USAGE;
    if (result != EXIT_DONE && !program.waits().signal())
        program.output().error(line + " was the last one; the lines after it are not sent.");
    return result;
}

/// Sends the non-empty lines of standard input. Stops after a line whose exit code is not
/// EXIT_DONE.
int sendLines(Program &program, Conversation &conversation)
{
    LineReader reader(program.waits());
    std::string code;
    int result = EXIT_DONE;
    for (int number = 1; result == EXIT_DONE && !program.output().hasFailed(); ++number) {
        if (reader.next(code, [] { return false; }) != LineReader::Result::Line)
            break;
        if (!code.empty())
            result = sendLine(program, conversation, code, number);
    }
    return result;
}

} // namespace

int send(Program &program)
{
    const Words &words = program.options().words;
    const bool readsInput = words.front() == "-";
    Conversation conversation(program.device(), program.waits(), program.options().timeout);
    return readsInput ? sendLines(program, conversation) : sendWords(program, conversation, words);
}

} // namespace Cli
