#ifndef MODEM_MMCLIENT_H
#define MODEM_MMCLIENT_H

#include <gio/gio.h>
#include <libmm-glib.h>
#include <string>

namespace FakeModems
{

/**
 * The result of a USSD request: the reply on success, otherwise the domain and the code of the
 * error.
 */
struct UssdResult {
    std::string text;
    std::string domain;
    int code = -1;
};

/**
 * A simple client of the daemon that uses libmm-glib and waits for each reply. It is used in the
 * tests of the modem fixtures, and in benchmarks that compare the plug-in with a simple client.
 */
class MmClient
{
public:
    explicit MmClient(const std::string &busAddress);
    ~MmClient();
    MmClient(const MmClient &) = delete;
    MmClient &operator=(const MmClient &) = delete;

    /// Selects the modem with this object path. Returns false if there is no such modem.
    bool use(const std::string &object);

    UssdResult initiate(const std::string &code, int limitMilliseconds = 10000);
    UssdResult respond(const std::string &answer);
    bool cancel();
    /// Waits up to ten seconds until the property of the USSD interface has this value. Returns
    /// false on time-out.
    bool waitForProperty(const char *name, const std::string &value);
    bool waitUntilIdle(); ///< waits until the USSD session is idle

    /// Sends a short message. Returns an empty string on success, otherwise an error message, as do
    /// sendPin() and sendPuk().
    std::string sendSms(const std::string &number, const std::string &text);
    std::string sendPin(const std::string &pin);
    std::string sendPuk(const std::string &puk, const std::string &newPin);

    int storedMessages(); ///< returns -1 if the modem has no messaging interface

    std::string operatorName();
    std::string operatorCode();
    std::string imei();
    /// Returns a property of the SIM card.
    std::string sim(const char *property);
    int signalPercent();

private:
    void forget();
    MMSim *readSim();

    GDBusConnection *m_connection = nullptr;
    MMManager *m_manager = nullptr;
    MMObject *m_object = nullptr;
    std::string m_path;
};

} // namespace FakeModems

#endif
