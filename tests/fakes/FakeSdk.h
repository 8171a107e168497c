#ifndef FAKESDK_H
#define FAKESDK_H

#include "FakeDispatcher.h"
#include "FakeRecords.h"

#include <atomic>
#include <memory>
#include <set>

/// The state of the fake library.
class FakeSdk
{
public:
    static FakeSdk &instance();

    void reset();
    bool waitIdle(std::chrono::milliseconds limit);

    // ---- calls and deliveries
    std::size_t enter(FakeCall call); ///< returns the number to be passed to leave()
    long leave(std::size_t ticket, long result, int status = 0);
    std::vector<FakeCall> calls() const;
    std::vector<FakeDelivery> deliveries() const;
    void forgetRecords();
    template <typename Predicate>
    bool waitUntil(std::chrono::milliseconds limit, Predicate predicate);

    // ---- results
    void setResult(const std::string &function, long result);
    long resultOf(const std::string &function) const;

    // ---- services
    FakeDispatcher &dispatcher(FakeService service);
    long add(const char *function, FakeService service, TKSV_EventCallback callback);
    long remove(const char *function, FakeService service, TKSV_EventCallback callback);
    void setUnregisterWaits(bool waits);

    // ---- USSD
    void setAnswer(const FakeAnswer &answer);
    void setScript(const std::vector<FakeAnswer> &answers);
    FakeAnswer takeAnswer();
    void block(std::size_t ticket, std::chrono::milliseconds limit);
    void unblock(); ///< makes all blocked calls return
    void answer(const FakeAnswer &answer);
    void respond(const FakeAnswer &answer);

    void startSession(const std::u16string &request);
    void setSessionState(TKSV_SessionState state);
    TKSV_SessionInfo session() const;

    // ---- device
    void setDeviceInfo(const TKSV_DeviceInfo &info);
    TKSV_DeviceInfo deviceInfo() const;
    void setInfoCallback(TKSV_DeviceInfoCallback callback, void *context);
    void setModems(const std::vector<TKSV_Modem> &modems);
    std::vector<TKSV_Modem> modems() const;
    void setLastFailure(const TKSV_FailureInfo &failure);
    TKSV_FailureInfo lastFailure() const;
    void setModes(const TKSV_ModesInfo &modes);
    TKSV_ModesInfo modes() const;
    void setTextCallback(TKSV_NetworkTextCallback callback, void *context);
    void tellNetworkText(const std::string &text, bool waitsForAnswer, long long receivedAt);
    void setScenarioOutcome(long result, const std::string &message);
    long useScenario(char *message, unsigned long messageSize) const;

    // ---- short messages
    void setCanSendSms(bool can);
    bool canSendSms() const;
    void setFailedCreateLeavesRecord(bool leaves);
    TKSV_SMSRecord createRecord(long result);
    bool isLive(TKSV_SMSRecord record);
    bool releaseRecord(TKSV_SMSRecord record);
    std::size_t liveRecords() const;
    std::size_t badRecords() const;

    // ---- folders
    void setUserDataDirectory(const std::u16string &directory);
    bool userDataDirectory(std::u16string &directory) const;

private:
    struct Settings {
        std::map<std::string, long> results;
        bool unregisterWaits = true;
        FakeAnswer answer;
        std::vector<FakeAnswer> script; // in reverse order: the next answer is the last element
        std::vector<FakeAnswer> heldBack;
        TKSV_DeviceInfo info{};
        std::vector<TKSV_Modem> modems;
        TKSV_FailureInfo lastFailure{};
        TKSV_ModesInfo modes{};
        TKSV_SessionInfo session{};
        long scenarioResult = 0;
        std::string scenarioMessage;
        bool canSendSms = false;
        bool failedCreateLeavesRecord = false;
        std::size_t badRecords = 0;
        bool hasUserData = false;
        std::u16string userData;
    };

    FakeSdk();
    bool unregisterWaits() const;
    void report(FakeService service, int event, unsigned char result);
    void stopServices();
    void schedule(const FakeAnswer &answer);
    void releaseHeldBack();
    void respondFromThreads(const FakeAnswer &answer);
    void tellInfo();
    void tellSession();

    mutable std::mutex m_mutex; // guards the members below, except services with their own mutexes
    std::condition_variable m_changed;
    Settings m_settings;
    std::vector<FakeCall> m_calls;
    std::vector<FakeDelivery> m_deliveries;
    std::set<TKSV_SMSRecord> m_records;
    std::size_t m_unblocked = 0; // calls with a lower number do not block
    std::mutex m_infoMutex;      // locked while the info call-back runs
    TKSV_DeviceInfoCallback m_infoCallback = nullptr;
    std::atomic<bool> m_hasInfoCallback{false};
    void *m_infoContext = nullptr;
    TKSV_NetworkTextCallback m_textCallback = nullptr;
    void *m_textContext = nullptr;
    FakeDispatcher m_ussd;
    FakeDispatcher m_device;
    FakeDispatcher m_sms;
};

template <typename Predicate>
bool FakeSdk::waitUntil(std::chrono::milliseconds limit, Predicate predicate)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, limit, [&] { return predicate(m_calls, m_deliveries); });
}

#endif
