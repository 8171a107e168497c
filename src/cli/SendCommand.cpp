#include "Answers.h"
#include "Commands.h"
#include "CommandText.h"
#include "ExitCodes.h"
#include "LineReader.h"
#include "Program.h"

namespace Cli
{

namespace
{

/// Sends a code, and then the answers to its menus. Stops after the first failure and returns its
/// exit code.
int sendWords(Program &program, Conversation &conversation, const Words &words)
{
    const int result = program.send(conversation, words.front(), Program::Kind::Code);
    if (result == EXIT_DONE && !program.output().hasFailed())
        return sendAnswers(program, conversation, words, 1);
    reportUnsent(program, std::string(), words, 1);
    return result;
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

/// Sends the non-empty lines of standard input. Stops after a line that cannot be sent or whose
/// code fails, and returns its exit code.
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
