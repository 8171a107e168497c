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

/** What all commands share: the command line, the device, and the output. */
class Program
{
public:
    /// `options` must outlive the object.
    explicit Program(const Options &options);

    const Options &options() const { return m_options; }
    Waits &waits() { return m_waits; }
    Output &output() { return m_output; }
    Device &device() { return m_device; }

    /// Selects the device, and says so if its network is simulated. Returns false after it has
    /// printed why the device cannot be used.
    bool selectDevice();
    /// Waits until the modem can send codes, and switches it on if the options ask for it. Returns
    /// true if it can send codes.
    bool prepareDevice();
    /// Waits until the library knows the modem, or knows that there is none.
    void awaitModem();
    /// Prints why the device cannot be used, and returns the exit code. `code` is the code that is
    /// not sent for this reason; it may be empty. Prints nothing if a signal has arrived.
    int failOnDevice(const std::string &code, bool wasNotSent = true);
    /// Prints the message and returns the exit code for the reason.
    int fail(TKSV_Failure reason, const std::string &message);

    /// Sends a code or an answer, and prints the reply or the failure. Returns the exit code. If
    /// the modem cannot send codes yet, waits for it. Ends the session of another program if the
    /// options ask for it.
    int send(Conversation &conversation, const std::string &text);

private:
    Milliseconds readyLimit() const;
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
