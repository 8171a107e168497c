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

/** Selects the appearance that GetCharSet() returns. */
enum _CHAR_SET_COLOR { CHAR_SET_SEND = 0, CHAR_SET_RECEIVE = 1 };

/** The attributes that the attribute getters of the configuration accept. 3 and 4 are not used. */
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

/** The time limits of the request pipeline, in milliseconds. */
struct ReplyTimes {
    int reply;    // time in which a reply must arrive
    int previous; // time for which a new time-out waits until the previous time-out is cancelled
};

/**
 * Stores the configuration, and sends the commands of all windows to the device one at a time.
 * Emits signals for replies, time-outs, device failures and SMS events.
 *
 * The singleton is constructed on first use from the GUI thread. Commands are sent and cleared,
 * time-outs are handled, and the singleton is destroyed on the same thread. The device SDK runs the
 * three call-backs on its own threads. The reply call-back sends the next pending command on such a
 * thread.
 *
 * Locks: m_mutex guards the pending commands during one call of CommandQueue. No other lock is
 * taken during this call. m_mutexSendCmd makes the sending of one command atomic. m_mutexTimeout,
 * which is locked after m_mutexSendCmd, guards the start of the time-out. No lock is held while a
 * signal is emitted or the host is called.
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

    /// Returns the singleton, which is created by the first call. Must be called from the GUI
    /// thread.
    static USSDLogic *GetUSSDLogicInstance();
    /// Waits for running call-backs, and then deletes the singleton, the time-out and the pending
    /// commands. The call-backs remain registered until unSDKRegisterEvent() is called. Must be
    /// called from the GUI thread.
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
    /// The following functions set `out` to the settings of one section. All functions except
    /// GetPrePostDiffer() read the section from the file again. They leave `out` unchanged if the
    /// file cannot be opened.
    void GetCharSet(_CHAR_SET_COLOR which, Formats::Char &out);
    void GetClearBtnSetting(Formats::ClearHistory &out);
    void GetCmdEditSetting(Formats::CmdEdit &out);
    void GetPrePostDiffer(Formats::PrePostDiffer &out);
    /// Returns the attribute. If the paid type, the component or the attribute is unknown, returns
    /// -1 or leaves `out` unchanged.
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
    /// Sets `flags` to the window flags that are configured for the longest prefix that matches
    /// `imsi`. Returns true if a prefix matches.
    bool CheckImsiIsValid(QString const &imsi, int &flags);
    bool IsImsiDynamicMatch();
    /// Returns the name under which the profile is displayed.
    QString getProfileShowText(const Formats::USSDProfile &profile);

    // ---- requests
    /// Queues a copy of `cmd`, and sends it if no command is in flight. Returns 0 if the command
    /// was sent or queued. Returns 1 if the command could not be sent. `*status` then contains the
    /// status of the device.
    int SendUSSDCommand(USSDCmdOrResp cmd, int *status);
    /// Sends the head of the queue, whose string is `command`, to the device. A command that is
    /// rejected or too long is removed from the queue. In this case, no signal is emitted, and the
    /// next command is not sent.
    int sendUSSDCommand(QString command, int *status);
    void copyCmdToList(USSDCmdOrResp cmd);
    void checkPendingCmds();
    /// Ends the USSD session on the device. The queue and the time-out remain unchanged. Returns 0
    /// on success, otherwise 1.
    int ReleaseUSSDCommand();
    int releaseUSSDCommand();
    /// Drops all commands except the prepaid/postpaid queries, including a command in flight.
    static void ClearQueuedCmds();
    /// Drops the commands of the USSD-SMS window.
    static void ClearUSSDSMSQueuedCmds();
    int registerUSSDCallback(EventCallback fn);
    int unregisterUSSDCallback(EventCallback fn);

    // ---- call-backs (threads of the device SDK)
    static unsigned char CallBackReceivedResponse(int event, void *data);
    static unsigned char OnDeviceMgrInitEvent(int event, void *data);
    static unsigned char SmsCallBackMethod(int event, void *data);

    /// Returns true if the device has most recently reported that it can send short messages.
    bool CanSendSMS();
    /// Unregisters the three call-backs from the device SDK.
    void unSDKRegisterEvent();

    static QString tr(const QString &key);

    /// Sets the time limits for all later commands. The default limits are 30 s for a reply and 3 s
    /// for the previous time-out. $USSD_REPLY_TIMEOUT_MS can change the limit for a reply. Must be
    /// called from the GUI thread.
    static void setReplyTimes(const ReplyTimes &times);
    static ReplyTimes replyTimes();

signals:
    // Emitted on the thread that receives the event. Therefore, connections to receivers on the GUI
    // thread are queued.
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
    static CommandQueue m_listOfCommandsToSend; // accessed only through LockedQueue
    static QMutex m_mutex;
    static QMutex m_mutexSendCmd;
    static QMutex m_mutexTimeout;
    static QWaitCondition m_waitCondition;
    static ReplyTimer *m_pTimer;
    static std::atomic<bool> m_bCanSendSMS;
    static quint64 m_timedHead; // the head for which the timer was armed; guarded by m_mutexTimeout
    static CallbackGate m_gate;
    static ReplyTimes m_replyTimes;

    Formats::PluginConfig m_config;
};

#endif
