#ifndef MODEM_MMCLIENT_H
#define MODEM_MMCLIENT_H

#include <gio/gio.h>
#include <libmm-glib.h>
#include <string>

namespace modem
{

/** Text on success; else domain and code of the error. */
struct UssdResult {
    std::string text;
    std::string domain;
    int code = -1;
};

/**
 * A plain client of the daemon, through libmm-glib, that waits for each reply. For tests of the
 * harness, and for what a measurement is compared with.
 */
class MmClient
{
public:
    explicit MmClient(const std::string &busAddress);
    ~MmClient();
    MmClient(const MmClient &) = delete;
    MmClient &operator=(const MmClient &) = delete;

    /// The modem with that object path; false when there is none.
    bool use(const std::string &object);

    UssdResult initiate(const std::string &code, int limitMilliseconds = 10000);
    UssdResult respond(const std::string &answer);
    bool cancel();
    /// Whether a property of the USSD interface has that value within ten seconds.
    bool waitForProperty(const char *name, const std::string &value);
    bool waitUntilIdle(); ///< of the USSD session

    /// Empty on success, else the error's message; likewise below.
    std::string sendSms(const std::string &number, const std::string &text);
    std::string sendPin(const std::string &pin);
    std::string sendPuk(const std::string &puk, const std::string &newPin);

    int storedMessages(); ///< -1 without a messaging interface

    std::string operatorName();
    std::string operatorCode();
    std::string imei();
    /// A property of the SIM.
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

} // namespace modem

#endif
