#include "Commands.h"
#include "DeviceText.h"
#include "ExitCodes.h"
#include "NetworkTexts.h"
#include "Program.h"

namespace Cli
{

namespace
{

const char WATCHING[] = "Watching for messages of the network; Ctrl-C ends the program.";

/** Prints network-initiated messages, and notices about changes to the modem. */
class Watch
{
public:
    explicit Watch(Program &program) : m_program(program), m_texts(program.waits()) {}

    void run();

private:
    void printTexts();
    void print(const NetworkText &text);
    void noticeState();

    Program &m_program;
    NetworkTexts m_texts;
    std::string m_state; // the most recently printed notice
};

std::string localTime(time_t time, const char *format)
{
    struct tm parts = {};
    localtime_r(&time, &parts);
    char text[64];
    return std::string(text, strftime(text, sizeof text, format, &parts));
}

void Watch::run()
{
    while (!m_program.waits().signal() && !m_program.output().hasFailed()) {
        noticeState();
        printTexts();
        m_program.device().await(
            [this, known = m_state] {
                return !m_texts.isEmpty() || deviceText(m_program.device().info()) != known;
            },
            NEVER);
    }
}

void Watch::printTexts()
{
    while (!m_texts.isEmpty())
        print(m_texts.take());
}

void Watch::print(const NetworkText &text)
{
    if (!m_program.options().isJson)
        return m_program.output().line(localTime(text.receivedAt, "%Y-%m-%d %H:%M:%S  ") +
                                       text.text);
    Json object;
    object.add("time", localTime(text.receivedAt, "%Y-%m-%dT%H:%M:%S%z"));
    object.add("text", text.text);
    object.add("waitsForAnswer", text.waitsForAnswer);
    object.add("modem", m_program.device().info().equipmentId);
    m_program.output().line(object);
}

void Watch::noticeState()
{
    const std::string state = deviceText(m_program.device().info());
    if (state == m_state)
        return;
    m_program.output().notice(state.empty() ? "The modem is registered again." : state);
    m_state = state;
}

} // namespace

int watch(Program &program)
{
    if (!program.prepareDevice())
        return program.failOnDevice(std::string());
    program.output().notice(WATCHING);
    Watch(program).run();
    return EXIT_DONE;
}

} // namespace Cli
