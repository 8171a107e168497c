#include "Commands.h"
#include "CommandText.h"
#include "ExitCodes.h"
#include "LineReader.h"
#include "NetworkTexts.h"
#include "Program.h"

#include <unistd.h>

namespace Cli
{

namespace
{

/** An interactive session in which the user enters codes and answers. */
class Chat
{
public:
    explicit Chat(Program &program)
        : m_program(program),
          m_conversation(program.device(), program.waits(), program.options().timeout),
          m_texts(program.waits()), m_reader(program.waits()), m_hasPrompt(isatty(STDIN_FILENO))
    {
    }

    void run();

private:
    void sendLine(const std::string &line);
    void printTexts();
    void showPrompt();
    bool expectsAnswer() const { return m_conversation.isMenuOpen() || m_isAsked; }

    Program &m_program;
    Conversation m_conversation;
    NetworkTexts m_texts;
    LineReader m_reader;
    const bool m_hasPrompt;
    bool m_isAsked = false; // true if the network is waiting for an answer
};

/// Sends the code on the command line, if any, and then each line of standard input until the end
/// of the input. If sending a line fails, prints the error and continues.
void Chat::run()
{
    const auto &words = m_program.options().words;
    if (!words.empty())
        sendLine(words.front());
    std::string line;
    LineReader::Result result = LineReader::Result::Interrupted;
    while (!m_program.waits().signal() && !m_program.output().hasFailed()) {
        printTexts();
        showPrompt();
        result = m_reader.next(line, [this] { return !m_texts.isEmpty(); });
        if (result == LineReader::Result::End)
            break;
        if (result == LineReader::Result::Line && !line.empty())
            sendLine(line);
    }
    if (m_hasPrompt)
        m_program.output().prompt("\n");
}

void Chat::sendLine(const std::string &line)
{
    const std::string problem = commandProblem(line);
    if (!problem.empty())
        return m_program.output().error("This cannot be sent: " + problem + ".");
    const Program::Kind kind =
        expectsAnswer() && !hasFormOfCode(line) ? Program::Kind::Answer : Program::Kind::Code;
    m_isAsked = false;
    m_program.send(m_conversation, line, kind);
}

void Chat::printTexts()
{
    while (!m_texts.isEmpty()) {
        const NetworkText text = m_texts.take();
        m_isAsked = text.waitsForAnswer;
        m_program.output().line((m_hasPrompt ? "\nMessage from the network:\n" : "") + text.text);
    }
}

void Chat::showPrompt()
{
    if (m_hasPrompt)
        m_program.output().prompt(expectsAnswer() ? "answer> " : "code> ");
}

} // namespace

int chat(Program &program)
{
    const auto &words = program.options().words;
    if (!program.prepareDevice())
        return program.failOnDevice(words.empty() ? std::string() : words.front());
    Chat(program).run();
    return EXIT_DONE;
}

} // namespace Cli
