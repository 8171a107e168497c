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

/** Specifies for which lines of the transcript GetCharSet() returns the text appearance. */
enum _CHAR_SET_COLOR { CHAR_SET_SEND = 0, CHAR_SET_RECEIVE = 1 };

/** The attributes of a component in the configuration. The values 3 and 4 are not used. */
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

/** The time limits for commands, in milliseconds. */
struct ReplyTimes {
    int reply;    // time limit for a reply
    int previous; // time limit for the wait until the previous time-out is disarmed
};

/**
 * Holds the configuration and sends the commands of all windows to the device, one at a time.
 * Signals report replies, time-outs, device failures and SMS events.
 *
 * The singleton is constructed on first use. It is used and destroyed on the GUI thread, which also
 * handles time-outs. The device SDK calls the three call-backs on its own threads. The reply
 * call-back sends the next command from such a thread.
 *
 * Locking: m_mutex guards the queue of pending commands for the duration of a single call, during
 * which no other lock is taken. m_mutexSendCmd serializes the sending of commands. m_mutexTimeout
 * guards the arming of the time-out and is locked after m_mutexSendCmd. No lock is held while a
 * signal is emitted or a function of the host is called.
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

    /// Returns the singleton and creates it on the first call. Must be called from the GUI thread.
    static USSDLogic *GetUSSDLogicInstance();
    /// Waits for running call-backs, and then deletes the singleton, its timer and the pending
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
    /// The following functions set `out` to the settings in a section of the configuration. All of
    /// them except GetPrePostDiffer() read the section from the file on each call, and leave `out`
    /// unchanged if the file cannot be opened.
    void GetCharSet(_CHAR_SET_COLOR which, Formats::Char &out);
    void GetClearBtnSetting(Formats::ClearHistory &out);
    void GetCmdEditSetting(Formats::CmdEdit &out);
    void GetPrePostDiffer(Formats::PrePostDiffer &out);
    /// Returns the attribute of a component. If the paid type, the component or the attribute is
    /// unknown, returns -1 or leaves `out` unchanged.
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
    /// Returns true if the configuration contains a prefix of `imsi`. Sets `flags` to the window
    /// flags of the longest matching prefix.
    bool CheckImsiIsValid(QString const &imsi, int &flags);
    bool IsImsiDynamicMatch();
    /// Returns the name of the profile in the current language.
    QString getProfileShowText(const Formats::USSDProfile &profile);

    // ---- requests
    /// Appends a copy of `cmd` to the queue and sends it if no command is in flight. Returns 0 if
    /// the command was sent or queued. Otherwise, returns 1, and `*status` contains the status that
    /// the device has reported, if any.
    int SendUSSDCommand(USSDCmdOrResp cmd, int *status);
    /// Sends the head of the queue to the device. `command` is the string of the head. If the
    /// command is rejected or too long, it is removed from the queue; no signal is emitted, and the
    /// next command is not sent. Returns 0 on success, otherwise 1.
    int sendUSSDCommand(QString command, int *status);
    void copyCmdToList(USSDCmdOrResp cmd);
    void checkPendingCmds();
    /// Ends the USSD session on the device. Does not affect the queue or the time-out. Returns 0 on
    /// success, otherwise 1.
    int ReleaseUSSDCommand();
    int releaseUSSDCommand();
    /// Removes all commands from the queue, even the command in flight, but keeps the
    /// prepaid/postpaid queries.
    static void ClearQueuedCmds();
    /// Removes the commands of the USSD-SMS window from the queue.
    static void ClearUSSDSMSQueuedCmds();
    int registerUSSDCallback(EventCallback fn);
    int unregisterUSSDCallback(EventCallback fn);

    // ---- call-backs (threads of the device SDK)
    static unsigned char CallBackReceivedResponse(int event, void *data);
    static unsigned char OnDeviceMgrInitEvent(int event, void *data);
    static unsigned char SmsCallBackMethod(int event, void *data);

    /// Returns true if the last status reported by the device allows sending short messages.
    bool CanSendSMS();
    /// Unregisters the three call-backs from the device SDK.
    void unSDKRegisterEvent();

    static QString tr(const QString &key);

    /// Sets the time limits for subsequent commands. By default, `reply` is 30 s, unless
    /// $USSD_REPLY_TIMEOUT_MS specifies a different limit, and `previous` is 3 s. Must be called
    /// from the GUI thread.
    static void setReplyTimes(const ReplyTimes &times);
    static ReplyTimes replyTimes();

signals:
    // Emitted on the thread that detects the event: a thread of the device SDK or the GUI thread.
    // Receivers on the GUI thread therefore use queued connections.
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
    static quint64 m_timedHead; // the head to which the time-out belongs; guarded by m_mutexTimeout
    static CallbackGate m_gate;
    static ReplyTimes m_replyTimes;

    Formats::PluginConfig m_config;
};

#endif
