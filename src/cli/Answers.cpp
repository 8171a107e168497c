#include "Answers.h"

#include "ExitCodes.h"
#include "Program.h"

namespace Cli
{

namespace
{

const char NOT_ANSWERED[] = "The menu was not answered, and the session was ended.";

/// Ends the session if a menu is open, and returns the exit code.
int closeMenu(Program &program, Conversation &conversation)
{
    if (!conversation.isMenuOpen())
        return EXIT_DONE;
    conversation.end();
    program.output().error(NOT_ANSWERED);
    return EXIT_MENU_OPEN;
}

} // namespace

void reportUnsent(Program &program, std::string message, const Words &words, std::size_t first)
{
    for (std::size_t i = first; i < words.size(); ++i)
        message += (i == first ? "Not sent: " : " ") + words[i];
    if (!message.empty())
        program.output().error(message);
}

int sendAnswers(Program &program, Conversation &conversation, const Words &words, std::size_t first)
{
    for (std::size_t i = first; i < words.size(); ++i) {
        if (!conversation.isMenuOpen()) {
            reportUnsent(program, "There is no menu to answer. ", words, i);
            return EXIT_REFUSED;
        }
        const int result = program.send(conversation, words[i], Program::Kind::Answer);
        if (result != EXIT_DONE || program.output().hasFailed()) {
            reportUnsent(program, std::string(), words, i + 1);
            return result;
        }
    }
    return closeMenu(program, conversation);
}

} // namespace Cli
