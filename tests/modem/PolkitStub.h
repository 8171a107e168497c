#ifndef MODEM_POLKITSTUB_H
#define MODEM_POLKITSTUB_H

#include <atomic>
#include <gio/gio.h>
#include <string>

#include "LoopThread.h"

namespace modem
{

/**
 * Answers the daemon's questions whether a client may do something, in place of polkit: everything
 * is allowed until it is told otherwise. It lives on the bus under polkit's name.
 */
class PolkitStub
{
public:
    PolkitStub() = default;
    ~PolkitStub();
    PolkitStub(const PolkitStub &) = delete;
    PolkitStub &operator=(const PolkitStub &) = delete;

    /// Returns when the name is owned. Empty on success.
    std::string start(const std::string &busAddress);
    void allow(bool allowed) { m_allowed = allowed; }
    int timesAsked() const { return m_timesAsked; }

private:
    void answer(GDBusMethodInvocation *invocation);
    std::string publish(const std::string &busAddress);

    std::atomic<bool> m_allowed{true};
    std::atomic<int> m_timesAsked{0};
    GDBusConnection *m_connection = nullptr;
    LoopThread m_thread{"polkit-stub"};
};

} // namespace modem

#endif
