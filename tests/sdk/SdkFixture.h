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

/** Things that come on other threads, in their order. */
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

    /// Whether that many have come within ten seconds.
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

/** Stays shut until it is opened. */
class Gate
{
public:
    void open();
    /// False when it is still shut after ten seconds.
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

/** What the three call-backs of the fixture have been given. */
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

/// Makes the device one in the network that the text describes, as a client finds it once it is
/// ready; the times of the text count from then. Empty on success. Linked in with the device.
std::string useNetwork(const std::string &scenario);

/** In what devices may differ. */
struct Abilities {
    /// A device that fails says so in the call. One behind a daemon is asked after the call has
    /// returned, so that its failure is the response.
    bool failsInTheCall = true;
    bool sendsEmptySms = true;
    /// Otherwise the characters of UCS2, without those that take two code units.
    bool knowsAllOfUnicode = true;
};
Abilities abilities();

void registerAll();
void unregisterAll();

unsigned char onUssd(int event, void *data);
unsigned char onDevice(int event, void *data);
unsigned char onSms(int event, void *data);

/** Runs an action inside the USSD call-back, after the response was recorded. */
class InsideUssd
{
public:
    explicit InsideUssd(std::function<void(const Response &)> action);
    /// When it returns, the action is not running: what it refers to may go.
    ~InsideUssd();
    InsideUssd(const InsideUssd &) = delete;
    InsideUssd &operator=(const InsideUssd &) = delete;
};

/// Sends the text; the result is that of the call.
long request(const std::u16string &text, int *status = nullptr);
/// Sends the text and returns the response to it, of type -1 when none came.
Response ask(const std::u16string &text);

/**
 * Does something that must be over within `milliseconds`, since then the network speaks; on a busy
 * machine it may take several attempts, each from `prepare` on. False when none was quick enough.
 */
bool doInTime(int milliseconds, const std::function<void()> &prepare,
              const std::function<void()> &action);

long sendSms(const std::u16string &number, const std::u16string &text);

/// Whether the condition has come true within ten seconds.
bool waitUntil(const std::function<bool()> &condition);

} // namespace SdkFixture

#endif
