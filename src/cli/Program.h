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
 * Contains the objects that all commands use: the command line, the waits, the output and the
 * device.
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

    /// Selects the device, and prints a notice if the network is simulated. If the device cannot be
    /// used, prints the error and returns false.
    bool selectDevice();
    /// Waits until the modem can send codes. With --enable, switches on a modem that is switched
    /// off. Returns true if the modem can send codes.
    bool prepareDevice();
    /// Waits until the library has found the modem, or has determined that there is none.
    void awaitModem();
    /// Returns the state of the device after a wait. If this state shows that the library is still
    /// searching for the modem, ModemManager does not respond.
    TKSV_DeviceInfo awaitedInfo() const;
    /// Prints the reason why the device cannot be used, and returns the exit code. `code` is the
    /// code that could not be sent; it may be empty. Does not print anything if a signal has
    /// arrived.
    int failOnDevice(const std::string &code, bool wasNotSent = true);
    /// Prints the message and returns the exit code for the reason.
    int fail(TKSV_Failure reason, const std::string &message);

    enum class Kind { Code, Answer };

    /// Sends the string, and prints the reply or the failure. Returns the exit code. Before it
    /// sends a code, waits if the modem is not ready yet, and with --end-foreign-session, ends the
    /// session of another program. Never repeats an answer, because without its menu, the answer
    /// would be sent as a code.
    int send(Conversation &conversation, const std::string &text, Kind kind);

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
    bool m_hasPrintedReply = false;
};

} // namespace Cli

#endif
