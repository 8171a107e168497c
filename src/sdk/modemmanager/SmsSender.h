#ifndef TKSV_INTERNAL_SMSSENDER_H
#define TKSV_INTERNAL_SMSSENDER_H

#include <functional>
#include <libmm-glib/libmm-glib.h>
#include <map>
#include <memory>

#include "../base/Backend.h"
#include "AsyncCall.h"
#include "GLibPointers.h"

namespace Tksv
{

/**
 * Sends short messages through a modem. Each message is stored on the modem, sent, and then
 * deleted. All functions must be called from the thread of the main loop.
 *
 * Pending calls hold a reference to this object, so that stored messages are deleted even after the
 * owner has released its reference. The owner must call failPending() before it releases its
 * reference. The listener is not called afterwards.
 */
class SmsSender : public std::enable_shared_from_this<SmsSender>
{
public:
    struct Listener {
        std::function<void(const SmsMessage &, int result)> finished;
        std::function<void()> notPermitted;
    };

    explicit SmsSender(Listener listener);

    /// Sets the messaging interface. Null means that the modem does not currently provide it.
    void setInterface(MMModemMessaging *messaging);
    bool isUsable() const { return m_messaging != nullptr; }

    void send(const SmsMessage &message);
    /// Reports all messages that are being sent as failed.
    void failPending();

private:
    using Id = unsigned;

    void created(Id id, MMSms *sms, const GError *error);
    void sent(Id id, MMSms *sms, const GError *error);
    void remove(MMSms *sms);
    void fail(Id id, const GError *error);

    const Listener m_listener;
    GObjectPtr<MMModemMessaging> m_messaging;
    std::map<Id, SmsMessage> m_inFlight;
    Id m_lastId = 0;
};

} // namespace Tksv

#endif
