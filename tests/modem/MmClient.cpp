#include "MmClient.h"

#include <memory>
#include <utility>

#include "BusConnection.h"

namespace FakeModems
{

namespace
{

const char USSD_INTERFACE[] = "org.freedesktop.ModemManager1.Modem.Modem3gpp.Ussd";
const char SERVICE[] = "org.freedesktop.ModemManager1";

struct Unref {
    void operator()(void *object) const { g_object_unref(object); }
};
template <typename T>
using Owned = std::unique_ptr<T, Unref>;

template <typename T>
Owned<T> own(T *object)
{
    return Owned<T>(object);
}

std::string textOf(const char *text)
{
    return text ? text : "";
}

std::string messageOf(GError *error)
{
    if (!error)
        return std::string();
    std::string message = error->message;
    g_error_free(error);
    return message.empty() ? "failed" : message;
}

UssdResult resultOf(char *reply, GError *error)
{
    UssdResult result;
    result.text = textOf(reply);
    g_free(reply);
    if (error) {
        result.domain = g_quark_to_string(error->domain);
        result.code = error->code;
        g_error_free(error);
    }
    return result;
}

std::string shownValue(GVariant *value)
{
    if (g_variant_is_of_type(value, G_VARIANT_TYPE_UINT32))
        return std::to_string(g_variant_get_uint32(value));
    return g_variant_get_string(value, nullptr);
}

} // namespace

MmClient::MmClient(const std::string &busAddress) : m_connection(connectTo(busAddress))
{
    // The manager does not need to receive signals, because the waiting functions poll the
    // properties.
    m_manager = mm_manager_new_sync(m_connection, G_DBUS_OBJECT_MANAGER_CLIENT_FLAGS_NONE, nullptr,
                                    nullptr);
}

MmClient::~MmClient()
{
    forget();
    closeConnection(m_connection);
}

void MmClient::forget()
{
    g_clear_object(&m_object);
    g_clear_object(&m_manager);
}

/// Creates a new manager each time, because an existing manager does not contain objects that were
/// added later.
bool MmClient::use(const std::string &object)
{
    forget();
    m_path = object;
    m_manager = mm_manager_new_sync(m_connection, G_DBUS_OBJECT_MANAGER_CLIENT_FLAGS_NONE, nullptr,
                                    nullptr);
    if (!m_manager || object.empty())
        return false;
    m_object = reinterpret_cast<MMObject *>(
        g_dbus_object_manager_get_object(G_DBUS_OBJECT_MANAGER(m_manager), object.c_str()));
    return m_object != nullptr;
}

UssdResult MmClient::initiate(const std::string &code, int limitMilliseconds)
{
    const auto ussd = own(mm_object_get_modem_3gpp_ussd(m_object));
    if (!ussd)
        return UssdResult();
    g_dbus_proxy_set_default_timeout(G_DBUS_PROXY(ussd.get()), limitMilliseconds);
    GError *error = nullptr;
    char *const reply = mm_modem_3gpp_ussd_initiate_sync(ussd.get(), code.c_str(), nullptr, &error);
    return resultOf(reply, error);
}

UssdResult MmClient::respond(const std::string &answer)
{
    const auto ussd = own(mm_object_get_modem_3gpp_ussd(m_object));
    GError *error = nullptr;
    char *const reply =
        mm_modem_3gpp_ussd_respond_sync(ussd.get(), answer.c_str(), nullptr, &error);
    return resultOf(reply, error);
}

bool MmClient::cancel()
{
    const auto ussd = own(mm_object_get_modem_3gpp_ussd(m_object));
    return mm_modem_3gpp_ussd_cancel_sync(ussd.get(), nullptr, nullptr);
}

bool MmClient::waitUntilIdle()
{
    return waitForProperty("State", std::to_string(MM_MODEM_3GPP_USSD_SESSION_STATE_IDLE));
}

bool MmClient::waitForProperty(const char *name, const std::string &value)
{
    const gint64 end = g_get_monotonic_time() + 10 * G_TIME_SPAN_SECOND;
    while (g_get_monotonic_time() < end) {
        const Reply reply =
            call(m_connection, {SERVICE, m_path, "org.freedesktop.DBus.Properties", "Get"},
                 g_variant_new("(ss)", USSD_INTERFACE, name));
        const VariantPtr inner(
            reply.value ? g_variant_get_child_value(reply.value.get(), 0)
                        : g_variant_ref_sink(g_variant_new_variant(g_variant_new_string(""))));
        const VariantPtr text(g_variant_get_variant(inner.get()));
        if (value == shownValue(text.get()))
            return true;
    }
    return false;
}

std::string MmClient::sendSms(const std::string &number, const std::string &text)
{
    const auto messaging = own(mm_object_get_modem_messaging(m_object));
    if (!messaging)
        return "no messaging interface";
    const auto properties = own(mm_sms_properties_new());
    mm_sms_properties_set_number(properties.get(), number.c_str());
    mm_sms_properties_set_text(properties.get(), text.c_str());
    GError *error = nullptr;
    const auto sms =
        own(mm_modem_messaging_create_sync(messaging.get(), properties.get(), nullptr, &error));
    if (sms)
        mm_sms_send_sync(sms.get(), nullptr, &error);
    return messageOf(error);
}

int MmClient::storedMessages()
{
    const auto messaging = own(mm_object_get_modem_messaging(m_object));
    if (!messaging)
        return -1;
    GList *messages = mm_modem_messaging_list_sync(messaging.get(), nullptr, nullptr);
    const int count = static_cast<int>(g_list_length(messages));
    g_list_free_full(messages, g_object_unref);
    return count;
}

MMSim *MmClient::readSim()
{
    const auto modem = own(mm_object_get_modem(m_object));
    return mm_modem_get_sim_sync(modem.get(), nullptr, nullptr);
}

std::string MmClient::sendPin(const std::string &pin)
{
    const auto sim = own(readSim());
    GError *error = nullptr;
    mm_sim_send_pin_sync(sim.get(), pin.c_str(), nullptr, &error);
    return messageOf(error);
}

std::string MmClient::sendPuk(const std::string &puk, const std::string &newPin)
{
    const auto sim = own(readSim());
    GError *error = nullptr;
    mm_sim_send_puk_sync(sim.get(), puk.c_str(), newPin.c_str(), nullptr, &error);
    return messageOf(error);
}

std::string MmClient::operatorName()
{
    return textOf(mm_modem_3gpp_get_operator_name(own(mm_object_get_modem_3gpp(m_object)).get()));
}

std::string MmClient::operatorCode()
{
    return textOf(mm_modem_3gpp_get_operator_code(own(mm_object_get_modem_3gpp(m_object)).get()));
}

std::string MmClient::imei()
{
    return textOf(mm_modem_get_equipment_identifier(own(mm_object_get_modem(m_object)).get()));
}

std::string MmClient::sim(const char *property)
{
    const auto sim = own(readSim());
    if (!sim)
        return "no SIM";
    const VariantPtr value(g_dbus_proxy_get_cached_property(G_DBUS_PROXY(sim.get()), property));
    return value ? textOf(g_variant_get_string(value.get(), nullptr)) : "no " + textOf(property);
}

int MmClient::signalPercent()
{
    gboolean recent = FALSE;
    return static_cast<int>(
        mm_modem_get_signal_quality(own(mm_object_get_modem(m_object)).get(), &recent));
}

} // namespace FakeModems
