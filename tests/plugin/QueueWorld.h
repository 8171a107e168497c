#ifndef QUEUEWORLD_H
#define QUEUEWORLD_H

#include <array>

#include "QueueModel.h"
#include "requests/CommandQueue.h"

/**
 * A state of the request pipeline. It consists of the queue, the other state of USSDLogic (the
 * reply timer, the send lock and the call-back gate), and the position of each thread.
 *
 * start() makes an event happen, and run() makes one thread perform its next step. A step changes
 * the queue and its model in the same way. failure() returns the rule that was broken.
 */
class QueueWorld
{
public:
    enum Event {
        SendQuery,    // not removed by either of the two clear functions
        SendGeneral,  // kept by ClearUSSDSMSQueuedCmds() only
        SendServices, // removed by both clear functions
        Reply,        // also stands for a reply when no command is pending
        TimeOut,
        Cancel,
        DeviceGone,
        ClearQueued,
        ClearServices,
        Destroy,
        EventCount
    };

    /// GuiInside is the GUI thread too. It stands for calls that a receiver of the time-out signal
    /// makes.
    enum Thread { Gui, GuiInside, FirstReply, SecondReply, Device, ThreadCount };

    typedef std::array<quint64, 4> Key;

    bool canStart(Event event) const;
    /// Performs the first step of the event.
    void start(Event event);
    static const char *nameOf(Event event);

    bool canRun(Thread thread) const;
    /// Returns the number of possible outcomes of the thread's next step. There is more than one if
    /// the device decides.
    int ways(Thread thread) const;
    void run(Thread thread, int way);
    const char *nextStep(Thread thread) const;
    static const char *nameOf(Thread thread);

    /// Returns the rule that was broken, or null.
    const char *failure() const { return m_failure; }
    /// Returns the key of this state. Two states with the same key have the same future.
    Key key() const;

private:
    enum Step {
        Idle,
        Append,
        Count,
        MarkSent,
        HandOver,
        RemoveRefused,
        ArmTimer,
        LookForQuickReply,
        DisarmTimer,
        ClaimForReply,
        StopTimer,
        RemoveAnswered,
        RunOut,
        LookUpHead,
        StopRunOutTimer,
        LookForReply,
        ClaimForTimeOut,
        RemoveTimedOut,
        ClaimForFailure,
        ClearAll,
        Release,
        KeepQueries,
        KeepAllButServices,
        StopAnyTimer,
        CloseGate,
        DeleteLogic,
        StepCount
    };

    /// A call in progress on a thread: its next step and its variables.
    struct Call {
        Step next = Idle;
        int component = 0;
        int command = 0;
        quint64 number = 0;
        int timedCommand = 0;
        quint64 timedNumber = 0;
        quint64 arming = 0;
        bool logicIsGone = false;
    };

    /// The reply timer, and the head for which it was started.
    struct Timer {
        bool isArmed = false;
        quint64 arming = 0;
        int command = 0;
        quint64 number = 0;
    };

    struct StepEntry {
        const char *name;
        void (QueueWorld::*run)(Call &call);
    };

    struct Oldest {
        int command;
        quint64 number;
    };

    class KeyWriter;

    static const StepEntry STEPS[];

    bool isIdle(Thread thread) const { return m_calls[thread].next == Idle; }
    bool isBusy() const;
    bool canStartOnGui() const;
    Thread threadFor(Event event) const;

    void expect(bool holds, const char *rule);
    void compareLists();
    unsigned heldCommands() const;
    void checkOutcomes();
    void checkRest();

    void append(Call &call);
    void count(Call &call);
    void markSent(Call &call);
    void handOver(Call &call);
    void removeRefused(Call &call);
    void armTimer(Call &call);
    void lookForQuickReply(Call &call);
    void disarmTimer(Call &call);
    void claimForReply(Call &call);
    void stopTimer(Call &call);
    void removeAnswered(Call &call);
    void runOut(Call &call);
    void lookUpHead(Call &call);
    void stopRunOutTimer(Call &call);
    void lookForReply(Call &call);
    void claimForTimeOut(Call &call);
    void removeTimedOut(Call &call);
    void claimForFailure(Call &call);
    void clearAll(Call &call);
    void release(Call &call);
    void keepQueries(Call &call);
    void keepAllButServices(Call &call);
    void stopAnyTimer(Call &call);
    void closeGate(Call &call);
    void deleteLogic(Call &call);

    void goOn(Call &call, bool holds, Step step);
    typedef CommandQueue::Claim (CommandQueue::*ClaimFunction)(CommandQueue::Head &, quint64);
    CommandQueue::Claim claim(Call &call, ClaimFunction function, quint64 number, int expected);
    CommandQueue::Claim claimInFlight(Call &call, quint64 number, int expected);
    void endHandOver(Call &call);
    void removeHead(const Call &call);
    void drop(bool (*keep)(const USSDCmdOrResp &));

    Oldest oldestCompared() const;
    void writeHead(KeyWriter &writer, int command, quint64 number) const;
    void writeCommands(KeyWriter &writer) const;
    void writeCalls(KeyWriter &writer) const;
    void writeCall(KeyWriter &writer, const Call &call) const;

    CommandQueue m_queue;
    QueueModel m_model;
    Timer m_timer;
    Call m_calls[ThreadCount];
    bool m_isHandingOver = false; // true while m_mutexSendCmd is locked
    bool m_gateIsOpen = true;
    bool m_isSilent = false; // true while commands wait after one that was refused or too long
    int m_way = 0;           // the outcome chosen for the current step
    int m_lastCommand = 0;
    // One bit for each command, as in the next three members.
    unsigned m_handed = 0;
    unsigned m_answered = 0;
    unsigned m_refused = 0;
    unsigned m_dropped = 0;
    const char *m_failure = nullptr;
};

#endif
