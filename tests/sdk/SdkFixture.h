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

/** Collects values that arrive on other threads, in order. */
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

    /// Returns true if at least this many values arrive within ten seconds.
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

/// Switches the device to the network that the scenario text describes, and returns when the device
/// is ready. The times in the text are relative to that moment. Returns an empty string on success.
/// Each kind of device links its own implementation.
std::string useNetwork(const std::string &scenario);

/** The differences between devices. */
struct Abilities {
    /// If true, a call fails if the device fails. A device behind a daemon fails only after the
    /// call has returned, and the response reports the failure.
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
    /// Returns when the action is no longer running. The objects to which it refers may then be
    /// deleted.
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
 * that time. Each attempt starts with `prepare`. A busy machine may need several attempts. Returns
 * false if no attempt was fast enough.
 */
bool doInTime(int milliseconds, const std::function<void()> &prepare,
              const std::function<void()> &action);

long sendSms(const std::u16string &number, const std::u16string &text);

/// Returns true if the condition becomes true within ten seconds.
bool waitUntil(const std::function<bool()> &condition);

} // namespace SdkFixture

#endif
