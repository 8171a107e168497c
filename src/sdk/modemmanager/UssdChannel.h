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

namespace tksv
{

/**
 * The USSD interface of one modem, whose session follows the interface's state.
 *
 * The daemon's reply comes before its news of the state, and whether the network waits for an
 * answer is known by the state alone: so a reply is told when the state has left "active".
 * The thread of the main loop only; what is asked for after the end is forgotten.
 */
class UssdChannel : public std::enable_shared_from_this<UssdChannel>
{
public:
    struct Listener {
        std::function<void(RequestToken, const UssdReply &)> replied;
        std::function<void(const UssdReply &)> networkSaid;
        std::function<void()> notPermitted;
    };

    UssdChannel(MainLoopThread &thread, Listener listener);

    /// The interface, also one that takes the place of an earlier proxy of the same; null when the
    /// modem has none at present.
    void setInterface(MMModem3gppUssd *ussd);
    bool isUsable() const { return m_ussd != nullptr; }
    /// After setInterface(): tells of a menu that somebody has left open, and begins what waits.
    void catchUp();

    /// In place of what is on its way.
    void request(RequestToken token, RequestKind kind, const std::string &text);
    /// Ends session and request; nothing is told of the request any more.
    void endSession();
    /// As endSession(), and the request gets an empty reply.
    void giveUp();

private:
    struct Request {
        RequestToken token;
        RequestKind kind;
        std::string text;
        bool isSecondTry;
    };

    void interfaceGone();
    void step();
    void start(const Request &request);
    void callReturned(unsigned call, const Request &request, GMemory<char> text,
                      const GError *error);
    void failed(const Request &request, const GError &error);
    void startCancel();
    void cancelReturned(unsigned call);

    void waitForState();
    void startLagTimer();
    void askForState();
    void propertiesChanged(GVariant *changed);
    void stateBecame(MMModem3gppUssdSessionState state);
    void finish(const UssdReply &reply);
    void networkAsks();
    AsyncDone whileAlive(AsyncDone function);

    MainLoopThread &m_thread;
    const Listener m_listener;
    GObjectPtr<MMModem3gppUssd> m_ussd;
    SignalConnections m_signals;

    std::optional<Request> m_next;   // to be started when nothing runs
    std::optional<Request> m_inCall; // Initiate or Respond runs, or its state is waited for
    std::optional<std::string> m_replyText;
    bool m_lagTimerRuns = false;
    bool m_wasActive = false; // the state has been seen active since the call began
    bool m_cancelWanted = false;
    bool m_cancelling = false;
    bool m_askedByNetwork = false; // the open session's question has been told
    bool m_questionCame = false;   // NetworkRequest has changed since the call began
    unsigned m_call = 0;           // the newest call; what older ones return does not count
};

} // namespace tksv

#endif
