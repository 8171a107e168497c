#ifndef CLI_PROGRAM_H
#define CLI_PROGRAM_H

#include <string>
#include <vector>

#include "Conversation.h"
#include "Device.h"
#include "Options.h"
#include "Output.h"

namespace Cli
{

/**
 * The objects that all commands share: the command-line options, the Waits object, the output and
 * the device.
 */
class Program
{
public:
    /// `options` must outlive the object.
    explicit Program(const Options &options);

    const Options &options() const { return m_options; }
    Waits &waits() { return m_waits; }
    Output &output() { return m_output; }
    Device &device() { return m_device; }

    /// Selects the device, and prints a notice if it is simulated. If the device cannot be used,
    /// prints an error message and returns false.
    bool selectDevice();
    /// Waits until the modem can send codes. With --enable, enables a disabled modem. Returns true
    /// if the modem can send codes.
    bool prepareDevice();
    /// Waits until the library has found a modem or has determined that there is none.
    void awaitModem();
    /// Returns the state of the device after a wait. If the library is still searching for a modem,
    /// the returned problem is that ModemManager does not respond.
    TKSV_DeviceInfo awaitedInfo() const;
    /// Prints why the device cannot be used, and returns the exit code. `code` is the code that
    /// could not be sent, or an empty string. Prints nothing if a signal has arrived.
    int failOnDevice(const std::string &code, bool wasNotSent = true);
    /// Prints the message and returns the exit code for the reason.
    int fail(TKSV_Failure reason, const std::string &message);

    enum class Kind { Code, Answer };

    /// Sends the string, prints the reply or the failure, and returns the exit code. If a code
    /// could not be sent, waits for the modem or, with --end-foreign-session, ends the session of
    /// another program, and sends the code again. Answers are never repeated, because an answer
    /// without its menu would be sent as a code.
    int send(Conversation &conversation, const std::string &text, Kind kind);
    /// Returns the newest reply, in UTF-8.
    const std::string &lastReply() const { return m_lastReply; }
    /// Waits for a short time until the home network of the SIM is known or codes cannot be sent.
    void awaitSim();

private:
    Milliseconds readyLimit() const;
    std::string hintFor(const Outcome &outcome) const;
    bool removeObstacle(TKSV_Failure reason);
    void printReply(const std::string &code, const Outcome &outcome);
    void printFailure(const std::string &code, const Outcome &outcome, const std::string &message);

    const Options &m_options;
    Waits m_waits;
    Output m_output;
    Device m_device;
    std::string m_lastReply;
    bool m_hasPrintedReply = false;
};

} // namespace Cli

#endif
