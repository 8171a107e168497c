#ifndef MODEM_POLKITSTUB_H
#define MODEM_POLKITSTUB_H

#include <atomic>
#include <gio/gio.h>
#include <string>

#include "LoopThread.h"

namespace FakeModems
{

/**
 * Replaces polkit on the bus: owns its bus name and answers the daemon's authorization requests.
 * The stub grants all requests unless it has been told to fail.
 */
class PolkitStub
{
public:
    PolkitStub() = default;
    ~PolkitStub();
    PolkitStub(const PolkitStub &) = delete;
    PolkitStub &operator=(const PolkitStub &) = delete;

    /// Starts the stub and waits until it owns the bus name. Returns an empty string on success,
    /// otherwise an error message.
    std::string start(const std::string &busAddress);
    void allow(bool allowed) { m_allowed = allowed; }
    /// If `fails` is true, the stub answers all requests with an error, as the bus does if polkit
    /// is not installed.
    void fail(bool fails) { m_fails = fails; }
    /// Delays the answer to the next request, as polkit does while the user is entering a password.
    void holdNext() { m_holdsNext = true; }
    bool isHolding();
    void answerHeld();
    int timesAsked() const { return m_timesAsked; }

private:
    void answer(GDBusMethodInvocation *invocation);
    std::string publish(const std::string &busAddress);

    std::atomic<bool> m_allowed{true};
    std::atomic<bool> m_fails{false};
    std::atomic<bool> m_holdsNext{false};
    GDBusMethodInvocation *m_held = nullptr; // used only on the stub's thread
    std::atomic<int> m_timesAsked{0};
    GDBusConnection *m_connection = nullptr;
    LoopThread m_thread{"polkit-stub"};
};

} // namespace FakeModems

#endif
