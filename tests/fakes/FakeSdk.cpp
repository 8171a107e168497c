#include "FakeSdk.h"

#include <algorithm>
#include <codecvt>
#include <cstring>
#include <future>
#include <locale>

struct TKSV_SMSRecordData {
    int unused;
};

namespace
{
const std::chrono::milliseconds STARTING_LINE_PATIENCE(1000);
const std::chrono::milliseconds BEFORE_RETURN_PATIENCE(500);

// True on a thread that is delivering a network-initiated message.
thread_local bool isNetworkInitiated = false;

std::string utf8Of(const std::u16string &text)
{
    return std::wstring_convert<std::codecvt_utf8_utf16<char16_t>, char16_t>().to_bytes(text);
}

// Makes several threads continue at the same time.
class StartingLine
{
public:
    explicit StartingLine(int crowd) : m_missing(crowd) {}

    void wait()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        if (--m_missing == 0)
            m_complete.notify_all();
        // The time limit is needed because a service that is being stopped does not run all jobs.
        m_complete.wait_for(lock, STARTING_LINE_PATIENCE, [this] { return m_missing <= 0; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_complete;
    int m_missing;
};
} // namespace

FakeSdk &FakeSdk::instance()
{
    static FakeSdk sdk;
    return sdk;
}

FakeSdk::FakeSdk()
    : m_ussd([this](int event, unsigned char result) { report(FakeService::Ussd, event, result); }),
      m_device(
          [this](int event, unsigned char result) { report(FakeService::Device, event, result); }),
      m_sms([this](int event, unsigned char result) { report(FakeService::Sms, event, result); })
{
}

void FakeSdk::reset()
{
    unblock();
    stopServices();
    setInfoCallback(nullptr, nullptr);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings = Settings();
    m_unblocked = 0;
    m_calls.clear();
    m_deliveries.clear();
    for (TKSV_SMSRecord record : m_records)
        delete record;
    m_records.clear();
}

void FakeSdk::stopServices()
{
    m_ussd.stop();
    m_device.stop();
    m_sms.stop();
}

bool FakeSdk::waitIdle(std::chrono::milliseconds limit)
{
    const auto until = FakeDispatcher::Clock::now() + limit;
    return m_ussd.waitIdle(until) && m_device.waitIdle(until) && m_sms.waitIdle(until);
}

// ---- calls and deliveries ----------------------------------------------------------------------

std::size_t FakeSdk::enter(FakeCall call)
{
    call.thread = std::this_thread::get_id();
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_calls.push_back(std::move(call));
    m_changed.notify_all();
    return m_calls.size() - 1;
}

long FakeSdk::leave(std::size_t ticket, long result, int status)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (ticket < m_calls.size()) { // false if the SDK has been reset during the call
        m_calls[ticket].returned = true;
        m_calls[ticket].result = result;
        m_calls[ticket].status = status;
    }
    return result;
}

std::vector<FakeCall> FakeSdk::calls() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_calls;
}

std::vector<FakeDelivery> FakeSdk::deliveries() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_deliveries;
}

void FakeSdk::forgetRecords()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_calls.clear();
    m_deliveries.clear();
    m_unblocked = 0;
}

void FakeSdk::report(FakeService service, int event, unsigned char result)
{
    FakeDelivery delivery;
    delivery.service = service;
    delivery.event = event;
    delivery.result = result;
    delivery.thread = std::this_thread::get_id();
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_deliveries.push_back(delivery);
    m_changed.notify_all();
}

// ---- results -----------------------------------------------------------------------------------

void FakeSdk::setResult(const std::string &function, long result)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.results[function] = result;
}

long FakeSdk::resultOf(const std::string &function) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_settings.results.find(function);
    return found == m_settings.results.end() ? 0 : found->second;
}

// ---- services ----------------------------------------------------------------------------------

FakeDispatcher &FakeSdk::dispatcher(FakeService service)
{
    if (service == FakeService::Ussd)
        return m_ussd;
    return service == FakeService::Device ? m_device : m_sms;
}

long FakeSdk::add(const char *function, FakeService service, TKSV_EventCallback callback)
{
    FakeCall call;
    call.function = function;
    call.callback = callback;
    const std::size_t ticket = enter(call);
    const long result = resultOf(function);
    if (result == 0)
        dispatcher(service).add(callback);
    return leave(ticket, result);
}

long FakeSdk::remove(const char *function, FakeService service, TKSV_EventCallback callback)
{
    FakeCall call;
    call.function = function;
    call.callback = callback;
    const std::size_t ticket = enter(call);
    const long result = resultOf(function);
    if (result == 0)
        dispatcher(service).remove(callback, unregisterWaits());
    return leave(ticket, result);
}

void FakeSdk::setUnregisterWaits(bool waits)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.unregisterWaits = waits;
}

bool FakeSdk::unregisterWaits() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_settings.unregisterWaits;
}

// ---- USSD --------------------------------------------------------------------------------------

void FakeSdk::setAnswer(const FakeAnswer &answer)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.answer = answer;
}

void FakeSdk::setScript(const std::vector<FakeAnswer> &answers)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.script.assign(answers.rbegin(), answers.rend());
}

FakeAnswer FakeSdk::takeAnswer()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_settings.script.empty())
        return m_settings.answer;
    FakeAnswer answer = m_settings.script.back();
    m_settings.script.pop_back();
    return answer;
}

void FakeSdk::block(std::size_t ticket, std::chrono::milliseconds limit)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait_for(lock, limit, [this, ticket] { return ticket < m_unblocked; });
}

void FakeSdk::unblock()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_unblocked = m_calls.size();
    m_changed.notify_all();
}

void FakeSdk::answer(const FakeAnswer &answer)
{
    m_ussd.eraseWaiting();
    releaseHeldBack();
    if (answer.afterNextRequest) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_settings.heldBack.push_back(answer);
        return;
    }
    schedule(answer);
}

void FakeSdk::releaseHeldBack()
{
    std::vector<FakeAnswer> heldBack;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        heldBack.swap(m_settings.heldBack);
    }
    for (const FakeAnswer &answer : heldBack)
        schedule(answer);
}

void FakeSdk::schedule(const FakeAnswer &answer)
{
    if (answer.times == 0)
        return;
    const auto delivered = std::make_shared<std::promise<void>>();
    m_ussd.post(
        [this, answer, delivered] {
            respondFromThreads(answer);
            delivered->set_value();
        },
        answer.delay, !answer.stubborn && !answer.afterNextRequest);
    if (answer.beforeReturn)
        delivered->get_future().wait_for(BEFORE_RETURN_PATIENCE);
}

void FakeSdk::respondFromThreads(const FakeAnswer &answer)
{
    const auto line = std::make_shared<StartingLine>(answer.threads);
    for (int i = 1; i < answer.threads; ++i)
        m_ussd.runAside([this, answer, line] {
            line->wait();
            respond(answer);
        });
    line->wait();
    respond(answer);
}

void FakeSdk::respond(const FakeAnswer &answer)
{
    isNetworkInitiated = session().state != TKSV_SESSION_IN_FLIGHT;
    const bool isMenu = answer.type == 1;
    setSessionState(isMenu ? TKSV_SESSION_WAITS_FOR_ANSWER : TKSV_SESSION_IDLE);
    for (int i = 0; i < answer.times; ++i) {
        FakeResponse response(answer.type, answer.text);
        m_ussd.deliver(0, answer.nullData ? nullptr : response.data());
    }
    isNetworkInitiated = false;
}

void FakeSdk::startSession(const std::u16string &request)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        TKSV_SessionInfo &session = m_settings.session;
        session.state = TKSV_SESSION_IN_FLIGHT;
        ++session.requestCount;
        const std::string text = utf8Of(request).substr(0, sizeof session.request - 1);
        std::memcpy(session.request, text.c_str(), text.size() + 1);
    }
    tellSession();
}

void FakeSdk::setSessionState(TKSV_SessionState state)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_settings.session.state = state;
    }
    tellSession();
}

TKSV_SessionInfo FakeSdk::session() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    TKSV_SessionInfo session = m_settings.session;
    if (isNetworkInitiated)
        session.request[0] = 0;
    return session;
}

void FakeSdk::tellSession()
{
    if (m_hasInfoCallback)
        m_device.post([this] { tellInfo(); });
}

// ---- device ------------------------------------------------------------------------------------

void FakeSdk::setDeviceInfo(const TKSV_DeviceInfo &info)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_settings.info = info;
    }
    m_device.post([this] { tellInfo(); });
}

TKSV_DeviceInfo FakeSdk::deviceInfo() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_settings.info;
}

void FakeSdk::setInfoCallback(TKSV_DeviceInfoCallback callback, void *context)
{
    const std::lock_guard<std::mutex> lock(m_infoMutex);
    m_infoCallback = callback;
    m_hasInfoCallback = callback != nullptr;
    m_infoContext = context;
}

void FakeSdk::tellInfo()
{
    const std::lock_guard<std::mutex> lock(m_infoMutex);
    if (m_infoCallback)
        m_infoCallback(m_infoContext);
}

void FakeSdk::setModems(const std::vector<TKSV_Modem> &modems)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_settings.modems = modems;
    }
    m_device.post([this] { tellInfo(); });
}

std::vector<TKSV_Modem> FakeSdk::modems() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_settings.modems;
}

void FakeSdk::setLastFailure(const TKSV_FailureInfo &failure)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.lastFailure = failure;
}

TKSV_FailureInfo FakeSdk::lastFailure() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_settings.lastFailure;
}

void FakeSdk::setModes(const TKSV_ModesInfo &modes)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.modes = modes;
}

TKSV_ModesInfo FakeSdk::modes() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_settings.modes;
}

void FakeSdk::setTextCallback(TKSV_NetworkTextCallback callback, void *context)
{
    const std::lock_guard<std::mutex> lock(m_infoMutex);
    m_textCallback = callback;
    m_textContext = context;
}

void FakeSdk::tellNetworkText(const std::string &text, bool waitsForAnswer, long long receivedAt)
{
    m_device.post([=] {
        TKSV_NetworkText record = {};
        record.receivedAt = receivedAt;
        record.waitsForAnswer = waitsForAnswer ? 1 : 0;
        record.text = text.c_str();
        const std::lock_guard<std::mutex> lock(m_infoMutex);
        if (m_textCallback)
            m_textCallback(m_textContext, &record);
    });
}

void FakeSdk::setScenarioOutcome(long result, const std::string &message)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.scenarioResult = result;
    m_settings.scenarioMessage = message;
}

long FakeSdk::useScenario(char *message, unsigned long messageSize) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (message && messageSize > 0) {
        const std::string text = m_settings.scenarioMessage.substr(0, messageSize - 1);
        std::memcpy(message, text.c_str(), text.size() + 1);
    }
    return m_settings.scenarioResult;
}

// ---- short messages ----------------------------------------------------------------------------

void FakeSdk::setCanSendSms(bool can)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.canSendSms = can;
}

bool FakeSdk::canSendSms() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_settings.canSendSms;
}

void FakeSdk::setFailedCreateLeavesRecord(bool leaves)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.failedCreateLeavesRecord = leaves;
}

TKSV_SMSRecord FakeSdk::createRecord(long result)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (result != 0 && !m_settings.failedCreateLeavesRecord)
        return nullptr;
    return *m_records.insert(new TKSV_SMSRecordData()).first;
}

bool FakeSdk::isLive(TKSV_SMSRecord record)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const bool live = m_records.count(record) != 0;
    m_settings.badRecords += live ? 0 : 1;
    return live;
}

bool FakeSdk::releaseRecord(TKSV_SMSRecord record)
{
    if (!isLive(record))
        return false;
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_records.erase(record);
    delete record;
    return true;
}

std::size_t FakeSdk::liveRecords() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_records.size();
}

std::size_t FakeSdk::badRecords() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_settings.badRecords;
}

// ---- folders -----------------------------------------------------------------------------------

void FakeSdk::setUserDataDirectory(const std::u16string &directory)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.hasUserData = true;
    m_settings.userData = directory;
}

bool FakeSdk::userDataDirectory(std::u16string &directory) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    directory = m_settings.userData;
    return m_settings.hasUserData;
}
