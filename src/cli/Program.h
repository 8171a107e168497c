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

/** The objects that all commands use: command line, waits, output and device. */
class Program
{
public:
    /// `options` must outlive the object.
    explicit Program(const Options &options);

    const Options &options() const { return m_options; }
    Waits &waits() { return m_waits; }
    Output &output() { return m_output; }
    Device &device() { return m_device; }

    /// Selects the device, and prints a line if its network is simulated. Returns false after
    /// printing the error if the device cannot be used.
    bool selectDevice();
    /// Waits until the modem can send codes. With --enable, switches on a modem that is switched
    /// off. Returns true if the modem can send codes.
    bool prepareDevice();
    /// Waits until the library has found the modem, or has found that there is none.
    void awaitModem();
    /// Returns the state of the device after a wait. If the library is still looking for the modem,
    /// ModemManager does not answer.
    TKSV_DeviceInfo awaitedInfo() const;
    /// Prints why the device cannot be used, and returns the exit code. `code` is the code that
    /// could not be sent; it may be empty. Prints nothing if a signal has arrived.
    int failOnDevice(const std::string &code, bool wasNotSent = true);
    /// Prints the message and returns the exit code for the reason.
    int fail(TKSV_Failure reason, const std::string &message);

    enum class Kind { Code, Answer };

    /// Sends the text, and prints the reply or the failure. Returns the exit code. For a code,
    /// waits for a modem that is not ready yet, and with --end-foreign-session ends the session of
    /// another program. An answer is never repeated, because without its menu it would be sent as a
    /// code.
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
