#ifndef TKSV_INTERNAL_USSDCHANNEL_H
#define TKSV_INTERNAL_USSDCHANNEL_H

#include <functional>
#include <libmm-glib/libmm-glib.h>
#include <memory>
#include <optional>
#include <string>

#include "../base/Backend.h"
#include "AsyncCall.h"
#include "GLibPointers.h"
#include "MainLoopThread.h"
#include "SignalConnections.h"

namespace Tksv
{

/**
 * The USSD session of one modem.
 *
 * The daemon sends the reply before it updates the session state, and only the state shows whether
 * the network waits for an answer. Therefore, the channel holds the reply back until the state is
 * no longer "active". All functions must be called from the thread of the main loop.
 */
class UssdChannel : public std::enable_shared_from_this<UssdChannel>
{
public:
    struct Listener {
        std::function<void(RequestToken, const UssdReply &)> replied;
        std::function<void(const UssdReply &)> textReceived;
        std::function<void()> notPermitted;
    };

    UssdChannel(MainLoopThread &thread, Listener listener);

    /// Sets the interface, a newer proxy of the same interface, or null while the modem does not
    /// have the interface.
    void setInterface(MMModem3gppUssd *ussd);
    bool isUsable() const { return m_ussd != nullptr; }
    /// Reports a menu that another program left open, and starts a pending request. Must be called
    /// after setInterface().
    void catchUp();

    /// Sends the string and replaces the request in flight.
    void request(RequestToken token, RequestKind kind, const std::string &text);
    /// Ends the session. The request in flight is cancelled and receives no reply.
    void endSession();
    /// Ends the session. The request in flight receives an empty reply.
    void failPending();

private:
    struct Request {
        RequestToken token;
        RequestKind kind;
        std::string text;
        bool isRetry;
    };

    void interfaceRemoved();
    void startNext();
    void start(const Request &request);
    void callReturned(unsigned call, const Request &request, GMemory<char> text,
                      const GError *error);
    void callFailed(const Request &request, const GError &error);
    void startCancel();
    void cancelReturned(unsigned call);

    void waitForState();
    void startLagTimer();
    void askForState();
    void propertiesChanged(GVariant *changed);
    void handleState(MMModem3gppUssdSessionState state);
    void finish(const UssdReply &reply);
    void reportQuestion();
    AsyncDone whileAlive(AsyncDone function);

    MainLoopThread &m_thread;
    const Listener m_listener;
    GObjectPtr<MMModem3gppUssd> m_ussd;
    SignalConnections m_signals;

    std::optional<Request> m_next;    // starts when no call is running
    std::optional<Request> m_running; // its call is running, or its reply waits for the state
    std::optional<std::string> m_replyText;
    bool m_isLagTimerRunning = false;
    bool m_wasActive = false; // true if the state has been active since the call started
    bool m_cancelWanted = false;
    bool m_cancelling = false;
    bool m_isQuestionReported = false; // true if the prompt has been reported
    bool m_hasNewQuestion = false;     // true if NetworkRequest has changed since the call started
    unsigned m_call = 0; // the number of the most recent call; results of earlier calls are ignored
};

} // namespace Tksv

#endif
