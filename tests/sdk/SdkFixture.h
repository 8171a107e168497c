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

/** Collects values from other threads in the order in which they arrive. */
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

    /// Waits up to ten seconds until at least `count` values have arrived. Returns false if fewer
    /// values have arrived by then.
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

/** Blocks threads until the gate is opened. */
class Gate
{
public:
    void open();
    /// Returns false if the gate is still closed after ten seconds.
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

/** The data that the three call-backs of the fixture have received. */
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

/// Switches the device to the network that the scenario describes, and returns when the device is
/// ready. The times in the scenario are relative to this moment. Returns an empty string on
/// success. There is a separate implementation for each type of device.
std::string useNetwork(const std::string &scenario);

/** The differences between devices. */
struct Abilities {
    /// If true, a call fails if the device fails. If ModemManager controls the device, the device
    /// fails only after the call has returned, and the response reports the failure.
    bool failsInTheCall = true;
    bool sendsEmptySms = true;
    /// If false, the device supports only UCS2, which lacks the characters that need two code
    /// units.
    bool knowsAllOfUnicode = true;
};
Abilities abilities();

void registerAll();
void unregisterAll();

unsigned char onUssd(int event, void *data);
unsigned char onDevice(int event, void *data);
unsigned char onSms(int event, void *data);

/** Runs an action in the USSD call-back, after the response has been recorded. */
class InsideUssd
{
public:
    explicit InsideUssd(std::function<void(const Response &)> action);
    /// Waits until the action is no longer running. The objects to which the action refers may then
    /// be deleted.
    ~InsideUssd();
    InsideUssd(const InsideUssd &) = delete;
    InsideUssd &operator=(const InsideUssd &) = delete;
};

/// Sends the command and returns the result of the call.
long request(const std::u16string &text, int *status = nullptr);
/// Sends the command and returns the response. The type is -1 if no response arrives.
Response ask(const std::u16string &text);

/**
 * Runs an action that must finish within `milliseconds`, because the network sends something after
 * this time. Each attempt starts with a call of `prepare`. On a busy machine, several attempts may
 * be necessary. Returns false if no attempt was fast enough.
 */
bool doInTime(int milliseconds, const std::function<void()> &prepare,
              const std::function<void()> &action);

long sendSms(const std::u16string &number, const std::u16string &text);

/// Waits up to ten seconds until the condition is true. Returns false if it is not true by then.
bool waitUntil(const std::function<bool()> &condition);

} // namespace SdkFixture

#endif
