/*
 * A device SDK that does the least a good one must: it copies the request, and a thread of its own
 * answers at once.
 */
#include "tksv.h"

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace
{

class InstantNetwork
{
public:
    ~InstantNetwork()
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_ending = true;
        }
        m_changed.notify_all();
        if (m_thread.joinable())
            m_thread.join();
    }

    void request()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_thread.joinable())
            m_thread = std::thread(&InstantNetwork::run, this);
        ++m_waiting;
        m_changed.notify_one();
    }

    void setCallback(TKSV_EventCallback callback)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_callback = callback;
    }

private:
    void run()
    {
        struct {
            int type;
            int reserved;
            unsigned short text[3];
        } response = {0, 0, {'O', 'K', 0}};
        std::unique_lock<std::mutex> lock(m_mutex);
        for (;;) {
            m_changed.wait(lock, [this] { return m_ending || m_waiting > 0; });
            if (m_ending)
                return;
            --m_waiting;
            const TKSV_EventCallback callback = m_callback;
            lock.unlock();
            if (callback)
                callback(0, &response);
            lock.lock();
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::thread m_thread;
    TKSV_EventCallback m_callback = nullptr;
    int m_waiting = 0;
    bool m_ending = false;
};

InstantNetwork network;

} // namespace

long TKSV_USSDSrv_Request(TKSV_USSDRequest *, int *status)
{
    *status = 0;
    network.request();
    return 0;
}

long TKSV_USSDSrv_Release(int *)
{
    return 0;
}

long TKSV_USSDSrv_RegisterUSSDCallback(TKSV_EventCallback callback)
{
    network.setCallback(callback);
    return 0;
}

long TKSV_USSDSrv_UnRegisterUSSDCallback(TKSV_EventCallback)
{
    network.setCallback(nullptr);
    return 0;
}

long TKSV_DevSrv_RegisterDevInitEventCallback(TKSV_EventCallback)
{
    return 0;
}

long TKSV_DevSrv_UnRegisterDevInitEventCallback(TKSV_EventCallback)
{
    return 0;
}

long TKSV_SMSSrv_RegCallBack(TKSV_EventCallback)
{
    return 0;
}

long TKSV_SMSSrv_UnRegCallBack(TKSV_EventCallback)
{
    return 0;
}

long TKSV_SMSSrv_CreateSMSRecord(TKSV_SMSRecord *record, const unsigned short *,
                                 const unsigned short *)
{
    *record = nullptr;
    return 1;
}

long TKSV_SMSSrv_SendMsg(TKSV_SMSRecord)
{
    return 1;
}

long TKSV_SMSSrv_ReleaseSMSRecord(TKSV_SMSRecord)
{
    return 1;
}

long TKSV_GetUserDataDirectory(unsigned short **directory)
{
    *directory = nullptr;
    return 1;
}
