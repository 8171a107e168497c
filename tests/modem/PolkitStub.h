#ifndef MODEM_POLKITSTUB_H
#define MODEM_POLKITSTUB_H

#include <atomic>
#include <gio/gio.h>
#include <string>

#include "LoopThread.h"

namespace FakeModems
{

/**
 * Replaces polkit on the bus and owns polkit's bus name. The stub answers the authorization
 * requests of the daemon. It grants all requests unless it is set to refuse them.
 */
class PolkitStub
{
public:
    PolkitStub() = default;
    ~PolkitStub();
    PolkitStub(const PolkitStub &) = delete;
    PolkitStub &operator=(const PolkitStub &) = delete;

    /// Starts the stub and returns when it owns the bus name. Returns an empty string on success,
    /// otherwise the error.
    std::string start(const std::string &busAddress);
    void allow(bool allowed) { m_allowed = allowed; }
    /// Makes the stub answer every request with an error, as the bus does if polkit is missing.
    void fail(bool fails) { m_fails = fails; }
    /// Holds back the answer to the next request, as polkit does while it prompts the user for a
    /// password.
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
    GDBusMethodInvocation *m_held = nullptr; // used on the stub's thread only
    std::atomic<int> m_timesAsked{0};
    GDBusConnection *m_connection = nullptr;
    LoopThread m_thread{"polkit-stub"};
};

} // namespace FakeModems

#endif
