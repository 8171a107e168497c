#ifndef USSDLOGIC_H
#define USSDLOGIC_H

#include <atomic>

#include <QMutex>
#include <QObject>
#include <QWaitCondition>

#include "CallbackGate.h"
#include "CommandQueue.h"
#include "PluginConfig.h"
#include "USSDCommand.h"
#include "USSDProfile.h"

class QFile;
class QXmlStreamReader;
class ReplyTimer;

/** Whose look GetCharSet() asks for. */
enum _CHAR_SET_COLOR { CHAR_SET_SEND = 0, CHAR_SET_RECEIVE = 1 };

/** What the attribute getters of the configuration are asked for; 3 and 4 are not used. */
enum ComponentAttribute {
    ATTR_VALUE = 0,
    ATTR_POS = 1,
    ATTR_COMMAND = 2,
    ATTR_LENGTH = 5,
    ATTR_MINLENTH = 6,
    ATTR_RETURN_STYLE = 7,
    ATTR_LIMIT_TEXT = 8,
    ATTR_UPDATE_BUTTON = 9,
    ATTR_URL = 10
};

/** Limits of the request pipeline, in milliseconds. */
struct ReplyTimes {
    int reply;    // how long a reply may take
    int previous; // how long a new time-out waits for the one before it to be taken back
};

/**
 * Holds the configuration, sends the commands of all dialogs to the device, one at a time, and
 * announces replies, time-outs, device failures and SMS events.
 *
 * The first use constructs the singleton on the GUI thread, which also sends, clears, handles
 * time-outs and destroys. The device SDK runs the three call-backs on its own threads, and the
 * reply call-back sends the next pending command there.
 *
 * Locks: m_mutex guards the pending commands for one call of CommandQueue, and no other lock is
 * taken meanwhile. m_mutexSendCmd makes the hand-over of one command atomic; m_mutexTimeout, taken
 * inside it, guards the start of the time-out. No lock is held while a signal is emitted or the
 * host is called.
 */
class USSDLogic : public QObject
{
    Q_OBJECT
public:
    typedef Formats::ConfigMSISDN MSISDN;
    typedef Formats::ConfigOnlineCharge OnlineCharge;
    typedef Formats::ConfigCharge Charge;
    typedef Formats::ConfigBalance Balance;
    typedef unsigned char (*EventCallback)(int event, void *data);

    /// The singleton, made on the first call. GUI thread.
    static USSDLogic *GetUSSDLogicInstance();
    /// Waits for running call-backs, then deletes the singleton with its time-out and its list. The
    /// call-backs stay registered: that is unSDKRegisterEvent(). GUI thread.
    static void Destroy();
    ~USSDLogic() override;

    // ---- configuration (GUI thread)
    bool openXMLFile(QXmlStreamReader &reader, QFile &file);
    void skipReaderTillString(QXmlStreamReader &reader, QString name);
    void load();
    void loadSendCharSettings(QXmlStreamReader &reader);
    void loadRecvCharSettings(QXmlStreamReader &reader);
    void loadCmdEditSettings(QXmlStreamReader &reader);
    void loadClearBtnSettings(QXmlStreamReader &reader);
    void loadAutoUssdSettings(QXmlStreamReader &reader);
    /// These three read their section anew; `out` is unchanged when the file cannot be opened.
    void GetCharSet(_CHAR_SET_COLOR which, Formats::Char &out);
    void GetClearBtnSetting(Formats::ClearHistory &out);
    void GetCmdEditSetting(Formats::CmdEdit &out);
    void GetPrePostDiffer(Formats::PrePostDiffer &out);
    /// -1, or `out` unchanged, for a paid type, component or attribute that has no answer.
    int GetComponentAttrInt(int paidType, int component, int attr);
    void GetComponentAttrStr(int paidType, int component, int attr, QString &out);
    int getBalanceIntAttr(int paidType, int attr);
    int getChargeIntAttr(int paidType, int attr);
    int getOnlineChargeIntAttr(int paidType, int attr);
    int getMSISDNIntAttr(int paidType, int attr);
    void getBalanceStrAttr(int paidType, int attr, QString &out);
    void getChargeStrAttr(int paidType, int attr, QString &out);
    void getOnlineChargeStrAttr(int paidType, int attr, QString &out);
    void getMSISDNStrAttr(int paidType, int attr, QString &out);
    /// The window flags that go with the longest configured prefix of this IMSI.
    bool CheckImsiIsValid(QString const &imsi, int &flags);
    bool IsImsiDynamicMatch();
    /// What a profile is called on the screen.
    QString getProfileShowText(const Formats::USSDProfile &profile);

    // ---- requests
    /// Queues a copy of `cmd` and, when nothing is in flight, hands it over. 0 when it was handed
    /// over or queued, 1 when it failed; `*status` is then the device's.
    int SendUSSDCommand(USSDCmdOrResp cmd, int *status);
    /// Hands the head of the list, whose text this is, to the device. A refused or too long command
    /// leaves the list in silence: no signal, and the next one is not sent.
    int sendUSSDCommand(QString command, int *status);
    void copyCmdToList(USSDCmdOrResp cmd);
    void checkPendingCmds();
    /// Ends the USSD session on the device; list and time-out stay as they are. 0 or 1.
    int ReleaseUSSDCommand();
    int releaseUSSDCommand();
    /// Drops all but the prepaid/postpaid queries, also the command in flight.
    static void ClearQueuedCmds();
    /// Drops the commands of the USSD-SMS dialog.
    static void ClearUSSDSMSQueuedCmds();
    int registerUSSDCallback(EventCallback fn);
    int unregisterUSSDCallback(EventCallback fn);

    // ---- call-backs (threads of the device SDK)
    static unsigned char CallBackReceivedResponse(int event, void *data);
    static unsigned char OnDeviceMgrInitEvent(int event, void *data);
    static unsigned char SmsCallBackMethod(int event, void *data);

    /// Whether the device last said that it can send short messages.
    bool CanSendSMS();
    /// Takes all three call-backs off the device SDK.
    void unSDKRegisterEvent();

    static QString tr(const QString &key);

    /// Replaces the pipeline's limits for all later commands (the shipped ones are 30 s and 3 s,
    /// the first of which $USSD_REPLY_TIMEOUT_MS can change). GUI thread.
    static void setReplyTimes(const ReplyTimes &times);
    static ReplyTimes replyTimes();

signals:
    // Emitted on the thread that brings the news: receivers on the GUI thread get them queued.
    void responseReceived(int iComponent, QString strResponse);
    void SmsSendResult(bool ok, QString number, QString text);
    void CanSendSMS(bool can);

public slots:
    void OnTimeOut();

private:
    class LockedQueue;

    explicit USSDLogic();

    void registerDeviceCallback();
    void registerSmsCallback();

    int sendHead(int *status);
    int sendUSSDCommand(const QString &command, quint64 number, int *status);
    static void armReplyTimer(quint64 number);
    static void stopReplyTimer(quint64 lastHead = ~quint64(0));
    static bool stopRunOutTimer();
    void announceSmsResult(void *data);
    void announceSmsStatus(void *data);

    static USSDLogic *m_pUSSDLogicInstance;
    static CommandQueue m_listOfCommandsToSend; // used through LockedQueue only
    static QMutex m_mutex;
    static QMutex m_mutexSendCmd;
    static QMutex m_mutexTimeout;
    static QWaitCondition m_waitCondition;
    static ReplyTimer *m_pTimer;
    static std::atomic<bool> m_bCanSendSMS;
    static quint64 m_timedHead; // the head that the timer was armed for; guarded by m_mutexTimeout
    static CallbackGate m_gate;
    static ReplyTimes m_replyTimes;

    Formats::PluginConfig m_config;
};

#endif
