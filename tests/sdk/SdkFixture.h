#ifndef SDKFIXTURE_H
#define SDKFIXTURE_H

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "tksv.h"

/** Collects values from other threads in the order of their arrival. */
template <typename T>
class Inbox
{
public:
    void add(const T &item)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_items.push_back(item);
        m_changed.notify_all();
    }

    /// Waits up to ten seconds until at least `count` values have arrived. Returns false on
    /// time-out.
    bool waitFor(std::size_t count)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::seconds(10),
                                  [&] { return m_items.size() >= count; });
    }

    std::vector<T> all() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_items;
    }

    void clear()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_items.clear();
    }

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<T> m_items;
};

/** Blocks threads until it is opened. */
class Gate
{
public:
    void open();
    /// Waits up to ten seconds until the gate is opened. Returns false on time-out.
    bool wait();

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_open = false;
};

struct Response {
    int event = -1;
    int type = -1;
    std::u16string text;
    std::thread::id thread;
};

struct SmsResult {
    int result = -1;
    std::u16string number;
    std::u16string text;
};

/** The data that the fixture's three call-backs have received. */
struct Received {
    Inbox<Response> responses;
    Inbox<int> deviceEvents;
    Inbox<SmsResult> smsResults;
    Inbox<int> smsStatus;
    void clear();
};

namespace SdkFixture
{

Received &received();

/// Switches the device to the network that the scenario describes, and waits until the device is
/// ready. The times in the scenario are relative to this moment. Returns an empty string on
/// success, otherwise an error message. Each type of device has its own implementation.
std::string useNetwork(const std::string &scenario);

/** The differences between types of devices. */
struct Abilities {
    /// If true, a request that the device cannot send fails immediately. With ModemManager, the
    /// request is accepted, and the response reports the failure later.
    bool failsInTheCall = true;
    bool sendsEmptySms = true;
    /// If false, the device supports only UCS2, which lacks characters that need two UTF-16 code
    /// units.
    bool knowsAllOfUnicode = true;
};
Abilities abilities();

void registerAll();
void unregisterAll();

unsigned char onUssd(int event, void *data);
unsigned char onDevice(int event, void *data);
unsigned char onSms(int event, void *data);

/** Runs an action inside the USSD call-back, after the response has been recorded. */
class InsideUssd
{
public:
    explicit InsideUssd(std::function<void(const Response &)> action);
    /// Waits until the action is not running, so that objects to which it refers can be deleted.
    ~InsideUssd();
    InsideUssd(const InsideUssd &) = delete;
    InsideUssd &operator=(const InsideUssd &) = delete;
};

/// Sends the command. Returns the result of TKSV_USSDSrv_Request().
long request(const std::u16string &text, int *status = nullptr);
/// Sends the command and waits for the response. If there is no response, its type is -1.
Response ask(const std::u16string &text);

/**
 * Runs an action that must finish within `milliseconds`, before the network sends its next message.
 * Each attempt starts with a call to `prepare`. Because the machine may be busy, several attempts
 * are made. Returns false if all attempts were too slow.
 */
bool doInTime(int milliseconds, const std::function<void()> &prepare,
              const std::function<void()> &action);

long sendSms(const std::u16string &number, const std::u16string &text);

/// Waits up to ten seconds until the condition is true. Returns false on time-out.
bool waitUntil(const std::function<bool()> &condition);

} // namespace SdkFixture

#endif
