#include "Program.h"

#include <algorithm>

#include "DeviceText.h"
#include "ExitCodes.h"
#include "FailureText.h"
#include "Json.h"

namespace Cli
{

namespace
{

const char DEMONSTRATION[] = "Demonstration: the network is invented; nothing is sent.";
const char AWAITING_TURN[] = "Waiting for another program of yours that uses this modem.";
const char END_FOREIGN_HINT[] =
    " The option --end-foreign-session ends the session of the other program.";

const char NOT_ENDED[] = " Its session could not be ended.";
const char ENABLE_HINT[] = " The option --enable switches it on.";
const char NOT_ENABLED[] = " It could not be switched on.";

const Milliseconds READY_LIMIT = std::chrono::seconds(10);

/// Returns the error message for the failure, followed by the network's final message.
std::string messageOf(const TKSV_FailureInfo &failure)
{
    const std::string message = failureText(failure);
    return *failure.text ? message + " It said: " + failure.text : message;
}

/// Returns true if the failure is due to the state of the device. In this case, deviceText()
/// provides a more precise message than failureText().
bool isDeviceNotReady(TKSV_Failure reason)
{
    return reason == TKSV_FAILURE_NO_DEVICE || reason == TKSV_FAILURE_DISABLED ||
           reason == TKSV_FAILURE_NOT_REGISTERED;
}

void addModem(Json &object, const TKSV_DeviceInfo &device)
{
    object.add("modem", device.equipmentId);
    if (device.backend == TKSV_BACKEND_SIMULATOR)
        object.add("demonstration", true);
}

} // namespace

Program::Program(const Options &options)
    : m_options(options), m_output(m_waits, options.isQuiet), m_device(m_waits)
{
}

bool Program::selectDevice()
{
    const std::string problem = m_device.select(m_options);
    if (!problem.empty())
        m_output.error(problem);
    else if (m_device.isSimulated())
        m_output.error(DEMONSTRATION);
    return problem.empty();
}

Milliseconds Program::readyLimit() const
{
    return std::min(READY_LIMIT, m_options.timeout);
}

void Program::awaitModem()
{
    m_device.awaitModem(readyLimit());
}

void Program::awaitSim()
{
    const auto isKnown = [this] {
        const TKSV_DeviceInfo now = m_device.info();
        return *now.imsi || *now.simOperatorCode || !isReady(now);
    };
    m_device.await(isKnown, Clock::now() + readyLimit());
}

TKSV_DeviceInfo Program::awaitedInfo() const
{
    TKSV_DeviceInfo device = m_device.info();
    if (device.isLooking && device.problem == TKSV_PROBLEM_NONE)
        device.problem = TKSV_PROBLEM_SERVICE_SILENT;
    return device;
}

bool Program::prepareDevice()
{
    if (m_device.awaitReady(readyLimit()))
        return true;
    return m_options.enablesModem && m_device.enable(m_options.timeout);
}

int Program::failOnDevice(const std::string &code, bool wasNotSent)
{
    if (m_waits.signal())
        return EXIT_NOT_READY;
    const TKSV_DeviceInfo device = awaitedInfo();
    Outcome outcome;
    outcome.failure.reason = deviceFailure(device);
    outcome.failure.wasNotSent = wasNotSent;
    std::string message = deviceText(device);
    if (outcome.failure.reason == TKSV_FAILURE_DISABLED)
        message += m_options.enablesModem ? NOT_ENABLED : ENABLE_HINT;
    if (outcome.failure.reason == TKSV_FAILURE_NONE) { // the modem became ready too late
        outcome.failure.reason = TKSV_FAILURE_NOT_REGISTERED;
        message = failureText(outcome.failure);
    }
    printFailure(code, outcome, message);
    return exitCodeOf(outcome.failure.reason);
}

int Program::fail(TKSV_Failure reason, const std::string &message)
{
    Outcome outcome;
    outcome.failure.reason = reason;
    printFailure(std::string(), outcome, message);
    return exitCodeOf(reason);
}

/// Sends the string immediately: the device is not checked first, because the library holds a
/// request until it has found the modem. If a code could not be sent, tries to solve the problem
/// and sends the code again.
int Program::send(Conversation &conversation, const std::string &text, Kind kind)
{
    conversation.onTurnAwaited([this] { m_output.notice(AWAITING_TURN); });
    Outcome outcome = conversation.send(text);
    const TKSV_FailureInfo first = outcome.failure;
    const bool mayBeRepeated = kind == Kind::Code && first.wasNotSent && !outcome.hasMissedTurn;
    if (mayBeRepeated && removeObstacle(first.reason))
        outcome = conversation.send(text);
    else if (kind == Kind::Code && isDeviceNotReady(first.reason))
        return failOnDevice(text, first.wasNotSent);
    if (outcome.hasFailed())
        printFailure(text, outcome, messageOf(outcome.failure) + hintFor(outcome));
    else
        printReply(text, outcome);
    m_lastReply = outcome.text;
    return exitCodeOf(outcome.failure.reason);
}

/// Returns a hint if the failure is due to another program's session. Returns an empty string if
/// the other program belongs to the same user, because it will release the modem by itself.
std::string Program::hintFor(const Outcome &outcome) const
{
    if (outcome.failure.reason != TKSV_FAILURE_IN_USE || outcome.hasMissedTurn)
        return std::string();
    return m_options.endsForeignSession ? NOT_ENDED : END_FOREIGN_HINT;
}

/// Tries to solve the problem that caused the failure. Returns true if another attempt may succeed.
bool Program::removeObstacle(TKSV_Failure reason)
{
    if (isDeviceNotReady(reason))
        return prepareDevice();
    return reason == TKSV_FAILURE_IN_USE && m_options.endsForeignSession &&
           m_device.endForeignSession(m_options.timeout);
}

/// Prints the reply. In the text format, empty lines separate the replies. With --json, each line
/// contains one object.
void Program::printReply(const std::string &code, const Outcome &outcome)
{
    if (!m_options.isJson) {
        m_output.line((m_hasPrintedReply ? "\n" : "") + outcome.text);
        m_hasPrintedReply = true;
        return;
    }
    Json object;
    object.add("code", code);
    object.add("reply", outcome.text);
    object.add("state", outcome.isMenu() ? "menu" : "done");
    object.add("type", outcome.type);
    addModem(object, m_device.info());
    object.addSeconds("seconds", outcome.seconds);
    m_output.line(object);
}

void Program::printFailure(const std::string &code, const Outcome &outcome,
                           const std::string &message)
{
    m_output.error(message);
    if (!m_options.isJson)
        return;
    Json object;
    if (!code.empty())
        object.add("code", code);
    object.add("state", "failed");
    object.add("reason", reasonName(outcome.failure.reason));
    object.add("message", message);
    object.add("notSent", outcome.failure.wasNotSent != 0);
    if (*outcome.failure.text)
        object.add("text", outcome.failure.text);
    addModem(object, m_device.info());
    object.addSeconds("seconds", outcome.seconds);
    m_output.line(object);
}

} // namespace Cli
