#ifndef TKSV_INTERNAL_SMSSENDER_H
#define TKSV_INTERNAL_SMSSENDER_H

#include <functional>
#include <libmm-glib/libmm-glib.h>
#include <map>
#include <memory>

#include "../base/Backend.h"
#include "AsyncCall.h"
#include "GLibPointers.h"

namespace tksv
{

/**
 * Sends short messages through one modem: each is stored, sent, and deleted where it was stored.
 * The thread of the main loop only. It stays until the last call has returned, so that records are
 * deleted also when its owner has gone; giveUp() comes before that, and nothing is told after it.
 */
class SmsSender : public std::enable_shared_from_this<SmsSender>
{
public:
    struct Listener {
        std::function<void(const SmsMessage &, int result)> finished;
        std::function<void()> notPermitted;
    };

    explicit SmsSender(Listener listener);

    /// Null when the modem has no such interface at present.
    void setInterface(MMModemMessaging *messaging);
    bool isUsable() const { return m_messaging != nullptr; }

    void send(const SmsMessage &message);
    /// What is on its way has failed.
    void giveUp();

private:
    using Id = unsigned;

    void created(Id id, MMSms *sms, const GError *error);
    void sent(Id id, MMSms *sms, const GError *error);
    void remove(MMSms *sms);
    void finish(Id id, const GError *error);

    const Listener m_listener;
    GObjectPtr<MMModemMessaging> m_messaging;
    std::map<Id, SmsMessage> m_onTheirWay;
    Id m_lastId = 0;
};

} // namespace tksv

#endif
