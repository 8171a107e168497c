#include "SdkFixture.h"

#include <algorithm>

namespace
{

std::mutex insideMutex; // locked while the action is running
std::function<void(const Response &)> insideUssd;

std::u16string textAt(const unsigned short *units)
{
    const unsigned short *end = units;
    while (*end)
        ++end;
    return std::u16string(units, end);
}

const unsigned short *units(const std::u16string &text)
{
    return reinterpret_cast<const unsigned short *>(text.c_str());
}

} // namespace

void Gate::open()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_open = true;
    m_changed.notify_all();
}

bool Gate::wait()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::seconds(10), [this] { return m_open; });
}

void Received::clear()
{
    responses.clear();
    deviceEvents.clear();
    smsResults.clear();
    smsStatus.clear();
}

namespace SdkFixture
{

Received &received()
{
    static Received instance;
    return instance;
}

void registerAll()
{
    TKSV_USSDSrv_RegisterUSSDCallback(onUssd);
    TKSV_DevSrv_RegisterDevInitEventCallback(onDevice);
    TKSV_SMSSrv_RegCallBack(onSms);
}

void unregisterAll()
{
    TKSV_USSDSrv_UnRegisterUSSDCallback(onUssd);
    TKSV_DevSrv_UnRegisterDevInitEventCallback(onDevice);
    TKSV_SMSSrv_UnRegCallBack(onSms);
}

unsigned char onUssd(int event, void *data)
{
    const auto *record = static_cast<const TKSV_USSDResponse *>(data);
    const Response response{event, record->type, textAt(record->text), std::this_thread::get_id()};
    const std::lock_guard<std::mutex> lock(insideMutex);
    received().responses.add(response);
    if (insideUssd)
        insideUssd(response);
    return 1;
}

unsigned char onDevice(int event, void *)
{
    received().deviceEvents.add(event);
    return 1;
}

unsigned char onSms(int event, void *data)
{
    if (event == TKSV_SMS_EVENT_STATUS_CHANGED)
        received().smsStatus.add(static_cast<const TKSV_SMSStatus *>(data)->status);
    if (event == TKSV_SMS_EVENT_SEND_RESULT) {
        const auto *record = static_cast<const TKSV_SMSSendResult *>(data);
        received().smsResults.add({record->result, textAt(record->number), textAt(record->text)});
    }
    return 1;
}

InsideUssd::InsideUssd(std::function<void(const Response &)> action)
{
    const std::lock_guard<std::mutex> lock(insideMutex);
    insideUssd = std::move(action);
}

InsideUssd::~InsideUssd()
{
    const std::lock_guard<std::mutex> lock(insideMutex);
    insideUssd = nullptr;
}

long request(const std::u16string &text, int *status)
{
    TKSV_USSDRequest record = {};
    record.length = static_cast<unsigned int>(text.size() * 2);
    std::copy_n(text.begin(), std::min<std::size_t>(text.size(), TKSV_USSD_MAX_UNITS), record.text);
    int ownStatus = 0;
    return TKSV_USSDSrv_Request(&record, status ? status : &ownStatus);
}

Response ask(const std::u16string &text)
{
    const std::size_t before = received().responses.all().size();
    if (request(text) != 0 || !received().responses.waitFor(before + 1))
        return Response();
    return received().responses.all().at(before);
}

bool doInTime(int milliseconds, const std::function<void()> &prepare,
              const std::function<void()> &action)
{
    for (int attempt = 0; attempt < 50; ++attempt) {
        prepare();
        const auto start = std::chrono::steady_clock::now();
        action();
        if (std::chrono::steady_clock::now() - start < std::chrono::milliseconds(milliseconds))
            return true;
    }
    return false;
}

long sendSms(const std::u16string &number, const std::u16string &text)
{
    TKSV_SMSRecord record = nullptr;
    if (TKSV_SMSSrv_CreateSMSRecord(&record, units(number), units(text)) != 0)
        return 1;
    const long result = TKSV_SMSSrv_SendMsg(record);
    return TKSV_SMSSrv_ReleaseSMSRecord(record) == 0 ? result : 2;
}

bool waitUntil(const std::function<bool()> &condition)
{
    for (int i = 0; i < 10000 && !condition(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return condition();
}

} // namespace SdkFixture
