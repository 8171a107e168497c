#ifndef QUEUEWORLD_H
#define QUEUEWORLD_H

#include <array>

#include "QueueModel.h"
#include "requests/CommandQueue.h"

/**
 * A state of the request pipeline: the queue, the other state of USSDLogic (the reply timer, the
 * send lock and the call-back gate), and the next step of each thread.
 *
 * start() starts an event, and run() performs the next step of a thread. Each step changes both the
 * queue and the model. failure() returns the first rule that was violated.
 */
class QueueWorld
{
public:
    enum Event {
        SendQuery,    // kept by both clear functions
        SendGeneral,  // kept only by ClearUSSDSMSQueuedCmds()
        SendServices, // removed by both clear functions
        Reply,        // also a reply that arrives when no command is pending
        TimeOut,
        Cancel,
        DeviceGone,
        ClearQueued,
        ClearServices,
        Destroy,
        EventCount
    };

    /// GuiInside represents calls that receivers of the time-out signal make on the GUI thread.
    enum Thread { Gui, GuiInside, FirstReply, SecondReply, Device, ThreadCount };

    typedef std::array<quint64, 4> Key;

    bool canStart(Event event) const;
    /// Starts the call that the event triggers.
    void start(Event event);
    static const char *nameOf(Event event);

    bool canRun(Thread thread) const;
    /// Returns the number of possible outcomes of the thread's next step. If the step depends on
    /// the device, there are several.
    int ways(Thread thread) const;
    void run(Thread thread, int way);
    const char *nextStep(Thread thread) const;
    static const char *nameOf(Thread thread);

    /// Returns the rule that was violated, or null.
    const char *failure() const { return m_failure; }
    /// Returns a key for this state. States with the same key behave in the same way from now on.
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

    /// A call that is in progress on a thread: the next step and the local variables.
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

    /// The reply timer, and the head for which it is running.
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
    bool m_isSilent = false; // true while commands wait behind a refused or too long command
    int m_way = 0;           // the outcome that was chosen for the current step
    int m_lastCommand = 0;
    // Bit masks with one bit per command, like the next three members.
    unsigned m_handed = 0;
    unsigned m_answered = 0;
    unsigned m_refused = 0;
    unsigned m_dropped = 0;
    const char *m_failure = nullptr;
};

#endif
