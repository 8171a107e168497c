#ifndef CLI_ANSWERS_H
#define CLI_ANSWERS_H

#include <string>
#include <vector>

namespace Cli
{

class Conversation;
class Program;

using Words = std::vector<std::string>;

/// Sends the words, starting at index `first`, as answers to the menus. Stops at the first failure.
/// Ends the session if the last reply is a menu. Returns the exit code.
int sendAnswers(Program &program, Conversation &conversation, const Words &words,
                std::size_t first);

/// Prints the message and the unsent answers, which start at index `first`.
void reportUnsent(Program &program, std::string message, const Words &words, std::size_t first);

} // namespace Cli

#endif
