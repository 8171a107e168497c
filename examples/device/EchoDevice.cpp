/*
 * The echo device: an example of a device SDK library in a single file. It simulates a device
 * without a network and replies to each code with the code itself, for example "Echo simulation:
 * *100#". It has no menus and does not support short messages. docs/host-integration.md specifies
 * the guarantees that a device SDK library must provide.
 *
 * To run a host with this library, add the folder of libtksv.so.1 to LD_LIBRARY_PATH.
 */
#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <filesystem>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "tksv.h"

namespace
{

const long OK = 0;
const long FAILED = 1;
const int REPLY_WITHOUT_MENU = 0; // the type of a final reply

/**
 * Runs tasks one after another on a thread of this library. All call-backs run on this thread.
 * Therefore, call-backs never run concurrently, and are never invoked from within a call by the
 * client.
 */
class Worker
{
public:
    ~Worker() { stop(); }
    void post(std::function<void()> task);

private:
    void stop();
    void run();

    std::mutex m_mutex; // guards all members except the thread
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_tasks;
    bool m_isStopping = false;
    std::thread m_thread;
};

void Worker::post(std::function<void()> task)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_tasks.push_back(std::move(task));
    if (!m_thread.joinable())
        m_thread = std::thread([this] { run(); });
    m_changed.notify_one();
}

void Worker::stop()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isStopping = true;
    }
    m_changed.notify_one();
    if (m_thread.joinable())
        m_thread.join();
}

void Worker::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_isStopping) {
        if (m_tasks.empty()) {
            m_changed.wait(lock);
            continue;
        }
        const std::function<void()> task = std::move(m_tasks.front());
        m_tasks.pop_front();
        lock.unlock();
        task();
        lock.lock();
    }
}

/** The registered call-backs of a service. */
class CallbackList
{
public:
    long add(TKSV_EventCallback callback);
    /// Removes the call-back. Waits until no call-back is running, unless a call-back calls this
    /// function. Fails if the call-back is not registered.
    long remove(TKSV_EventCallback callback);
    bool isEmpty();
    void call(int event, void *data);

private:
    bool contains(TKSV_EventCallback callback) const;

    std::recursive_mutex m_mutex; // locked while a call-back runs
    std::vector<TKSV_EventCallback> m_callbacks;
};

bool CallbackList::contains(TKSV_EventCallback callback) const
{
    return std::find(m_callbacks.begin(), m_callbacks.end(), callback) != m_callbacks.end();
}

long CallbackList::add(TKSV_EventCallback callback)
{
    const std::lock_guard<std::recursive_mutex> lock(m_mutex);
    if (!callback)
        return FAILED;
    if (!contains(callback))
        m_callbacks.push_back(callback);
    return OK;
}

long CallbackList::remove(TKSV_EventCallback callback)
{
    const std::lock_guard<std::recursive_mutex> lock(m_mutex);
    if (!contains(callback))
        return FAILED;
    m_callbacks.erase(std::remove(m_callbacks.begin(), m_callbacks.end(), callback),
                      m_callbacks.end());
    return OK;
}

bool CallbackList::isEmpty()
{
    const std::lock_guard<std::recursive_mutex> lock(m_mutex);
    return m_callbacks.empty();
}

void CallbackList::call(int event, void *data)
{
    const std::lock_guard<std::recursive_mutex> lock(m_mutex);
    const std::vector<TKSV_EventCallback> callbacks = m_callbacks;
    for (TKSV_EventCallback callback : callbacks) {
        if (contains(callback)) // an earlier call-back may have unregistered this one
            callback(event, data);
    }
}

/** The device. The worker must be the last member, because its thread uses the other members. */
struct EchoDevice {
    CallbackList ussd;
    CallbackList device;
    CallbackList sms;
    std::atomic<unsigned> lastRequest{0}; // replies to earlier requests are dropped
    Worker worker;
};

EchoDevice &echo()
{
    static EchoDevice instance;
    return instance;
}

void reply(const std::u16string &code)
{
    const std::u16string text = u"Echo simulation: " + code;
    const std::size_t bytes = sizeof(TKSV_USSDResponse) + text.size() * sizeof(char16_t);
    std::vector<int> memory(bytes / sizeof(int) + 1); // aligned and zeroed
    auto *response = reinterpret_cast<TKSV_USSDResponse *>(memory.data());
    response->type = REPLY_WITHOUT_MENU;
    std::memcpy(reinterpret_cast<char *>(memory.data()) + offsetof(TKSV_USSDResponse, text),
                text.data(), text.size() * sizeof(char16_t));
    echo().ussd.call(0, response);
}

bool isWellFormed(const TKSV_USSDRequest &request)
{
    return request.length > 0 && request.length % 2 == 0 && request.length <= sizeof request.text;
}

std::u16string codeOf(const TKSV_USSDRequest &request)
{
    std::u16string code(request.length / 2, u'\0');
    std::memcpy(&code[0], request.text, request.length);
    return code;
}

/// Returns the user's folder for this library, which is created if necessary and ends with "/".
/// Returns an empty string if the user has no home directory.
std::u16string userFolder()
{
    const char *home = std::getenv("HOME");
    if (!home || !*home)
        return std::u16string();
    const std::filesystem::path folder =
        std::filesystem::path(home) / ".local/share/echo-device" / "";
    std::filesystem::create_directories(folder);
    return folder.u16string();
}

} // namespace

long TKSV_USSDSrv_Request(TKSV_USSDRequest *request, int *status)
{
    if (!status)
        return FAILED;
    *status = request && isWellFormed(*request) ? 0 : 1;
    if (*status != 0)
        return FAILED;
    const unsigned number = ++echo().lastRequest;
    echo().worker.post([number, code = codeOf(*request)] {
        if (number == echo().lastRequest)
            reply(code);
    });
    return OK;
}

long TKSV_USSDSrv_Release(int *status)
{
    ++echo().lastRequest;
    if (status)
        *status = 0;
    return OK;
}

long TKSV_USSDSrv_RegisterUSSDCallback(TKSV_EventCallback callback)
{
    return echo().ussd.add(callback);
}

long TKSV_USSDSrv_UnRegisterUSSDCallback(TKSV_EventCallback callback)
{
    const long result = echo().ussd.remove(callback);
    if (echo().ussd.isEmpty())
        TKSV_USSDSrv_Release(nullptr);
    return result;
}

long TKSV_DevSrv_RegisterDevInitEventCallback(TKSV_EventCallback callback)
{
    return echo().device.add(callback);
}

long TKSV_DevSrv_UnRegisterDevInitEventCallback(TKSV_EventCallback callback)
{
    return echo().device.remove(callback);
}

long TKSV_SMSSrv_RegCallBack(TKSV_EventCallback callback)
{
    return echo().sms.add(callback);
}

long TKSV_SMSSrv_UnRegCallBack(TKSV_EventCallback callback)
{
    return echo().sms.remove(callback);
}

long TKSV_SMSSrv_CreateSMSRecord(TKSV_SMSRecord *record, const unsigned short *,
                                 const unsigned short *)
{
    if (record)
        *record = nullptr;
    return FAILED;
}

long TKSV_SMSSrv_SendMsg(TKSV_SMSRecord)
{
    return FAILED;
}

long TKSV_SMSSrv_ReleaseSMSRecord(TKSV_SMSRecord)
{
    return FAILED;
}

long TKSV_GetUserDataDirectory(unsigned short **directory)
{
    if (!directory)
        return FAILED;
    *directory = nullptr;
    try {
        const std::u16string folder = userFolder();
        if (folder.empty())
            return FAILED;
        *directory = new unsigned short[folder.size() + 1]();
        std::copy(folder.begin(), folder.end(), *directory);
        return OK;
    } catch (...) { // exceptions must not cross the C interface
        return FAILED;
    }
}
