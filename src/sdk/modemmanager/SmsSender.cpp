#include "SmsSender.h"

#include <utility>

#include "../base/Text.h"
#include "UssdErrors.h"

namespace Tksv
{

namespace
{

/// Disables the time-out of D-Bus calls. The client decides how long to wait for the result.
const int NO_TIME_LIMIT = G_MAXINT;

GObjectPtr<MMSmsProperties> propertiesOf(const SmsMessage &message)
{
    GObjectPtr<MMSmsProperties> properties(mm_sms_properties_new());
    const std::string number = toUtf8(message.number).value_or(std::string());
    const std::string text = toUtf8(message.text).value_or(std::string());
    mm_sms_properties_set_number(properties.get(), number.c_str());
    mm_sms_properties_set_text(properties.get(), text.c_str());
    return properties;
}

} // namespace

SmsSender::SmsSender(Listener listener) : m_listener(std::move(listener)) {}

void SmsSender::setInterface(MMModemMessaging *messaging)
{
    if (messaging == m_messaging.get())
        return;
    m_messaging = shareObject(messaging);
    if (m_messaging)
        g_dbus_proxy_set_default_timeout(G_DBUS_PROXY(messaging), NO_TIME_LIMIT);
}

void SmsSender::send(const SmsMessage &message)
{
    const Id id = ++m_lastId;
    m_inFlight[id] = message;
    if (!m_messaging)
        return fail(id, nullptr);
    const AsyncDone done = [self = shared_from_this(), id](GObject *messaging,
                                                           GAsyncResult *result) {
        ErrorSlot error;
        const GObjectPtr<MMSms> sms(
            mm_modem_messaging_create_finish(MM_MODEM_MESSAGING(messaging), result, error.slot()));
        self->created(id, sms.get(), error.get());
    };
    mm_modem_messaging_create(m_messaging.get(), propertiesOf(message).get(), nullptr, runAsyncDone,
                              asyncDone(done));
}

void SmsSender::created(Id id, MMSms *sms, const GError *error)
{
    if (!sms)
        return fail(id, error);
    if (m_inFlight.count(id) == 0)
        return remove(sms); // already reported as failed; the client may have sent it again
    g_dbus_proxy_set_default_timeout(G_DBUS_PROXY(sms), NO_TIME_LIMIT);
    const AsyncDone done = [self = shared_from_this(), id](GObject *source, GAsyncResult *result) {
        ErrorSlot failure;
        mm_sms_send_finish(MM_SMS(source), result, failure.slot());
        self->sent(id, MM_SMS(source), failure.get());
    };
    mm_sms_send(sms, nullptr, runAsyncDone, asyncDone(done));
}

void SmsSender::sent(Id id, MMSms *sms, const GError *error)
{
    remove(sms);
    const auto found = m_inFlight.find(id);
    if (error || found == m_inFlight.end())
        return fail(id, error);
    const SmsMessage message = found->second;
    m_inFlight.erase(found);
    m_listener.finished(message, SMS_SENT);
}

/// Deletes the message from the modem's storage, even if it could not be sent, because the storage
/// of a SIM is small. Errors are ignored; the message then remains in the storage.
void SmsSender::remove(MMSms *sms)
{
    if (!m_messaging)
        return;
    const AsyncDone done = [](GObject *messaging, GAsyncResult *result) {
        ErrorSlot ignored;
        mm_modem_messaging_delete_finish(MM_MODEM_MESSAGING(messaging), result, ignored.slot());
    };
    mm_modem_messaging_delete(m_messaging.get(), mm_sms_get_path(sms), nullptr, runAsyncDone,
                              asyncDone(done));
}

/// Reports that the message was not sent. `error` is null if the modem has no messaging interface.
void SmsSender::fail(Id id, const GError *error)
{
    const auto found = m_inFlight.find(id);
    if (found == m_inFlight.end())
        return; // already reported as failed
    const SmsMessage message = found->second;
    m_inFlight.erase(found);
    if (error && isNotPermitted(*error))
        m_listener.notPermitted();
    m_listener.finished(message, SMS_FAILED);
}

void SmsSender::failPending()
{
    const std::map<Id, SmsMessage> lost = std::exchange(m_inFlight, {});
    for (const auto &entry : lost)
        m_listener.finished(entry.second, SMS_FAILED);
}

} // namespace Tksv
