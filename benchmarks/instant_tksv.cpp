/*
 * A device SDK that does as little as possible: it copies the request and replies immediately from
 * its own thread. A queued signal passes the request to this thread, as in the bare round trip of
 * pipeline_benchmark. The difference between a command's round trip and the bare round trip is
 * therefore the cost of the pipeline.
 */
#include "instant_tksv.h"

#include <algorithm>

#include <QFile>
#include <QThread>

#include "tksv.h"

namespace
{

struct Response {
    int type;
    int reserved;
    unsigned short text[3];
};

/// Sends the replies from the device's thread.
class Device : public QObject
{
    Q_OBJECT
public:
    explicit Device(TKSV_EventCallback callback) : m_callback(callback) {}

public slots:
    void answer(int number, QString text)
    {
        Q_UNUSED(number);
        Q_UNUSED(text);
        Response response = {0, 0, {'O', 'K', 0}};
        m_callback(0, &response);
    }

private:
    TKSV_EventCallback m_callback;
};

/// Accepts requests from the GUI thread and from call-backs on the device's thread.
class InstantNetwork : public QObject
{
    Q_OBJECT
public:
    explicit InstantNetwork(TKSV_EventCallback callback) : m_device(callback)
    {
        m_device.moveToThread(&m_thread);
        connect(this, SIGNAL(requested(int, QString)), &m_device, SLOT(answer(int, QString)),
                Qt::QueuedConnection);
        m_thread.start();
    }

    void answerNow()
    {
        QMetaObject::invokeMethod(&m_device, "answer", Qt::BlockingQueuedConnection, Q_ARG(int, 0),
                                  Q_ARG(QString, QString()));
    }

    ~InstantNetwork() override
    {
        m_thread.quit();
        m_thread.wait();
    }

    void request(const QString &command) { emit requested(0, command); }

signals:
    void requested(int number, QString text);

private:
    QThread m_thread;
    Device m_device;
};

InstantNetwork *network = nullptr;
bool isHeld = false;
bool hasHeldBack = false;

} // namespace

void instant_tksv_hold(bool held)
{
    isHeld = held;
    if (!held && hasHeldBack)
        network->request(QString());
    hasHeldBack = false;
}

void instant_tksv_settle()
{
    isHeld = false;
    hasHeldBack = false;
    network->answerNow();
}

long TKSV_USSDSrv_Request(TKSV_USSDRequest *request, int *status)
{
    *status = 0;
    hasHeldBack = isHeld;
    if (isHeld)
        return 0;
    const int units = static_cast<int>(request->length / sizeof(unsigned short));
    network->request(QString(reinterpret_cast<const QChar *>(request->text), units));
    return 0;
}

long TKSV_USSDSrv_Release(int *)
{
    return 0;
}

long TKSV_USSDSrv_RegisterUSSDCallback(TKSV_EventCallback callback)
{
    network = new InstantNetwork(callback);
    return 0;
}

long TKSV_USSDSrv_UnRegisterUSSDCallback(TKSV_EventCallback)
{
    delete network;
    network = nullptr;
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

/// Returns the folder specified by $TKSV_USER_DATA, which must exist. Fails if the variable is not
/// set.
long TKSV_GetUserDataDirectory(unsigned short **directory)
{
    const QString chosen = QFile::decodeName(qgetenv("TKSV_USER_DATA"));
    *directory = nullptr;
    if (chosen.isEmpty())
        return 1;
    *directory = new unsigned short[static_cast<size_t>(chosen.length()) + 1];
    std::copy_n(chosen.utf16(), chosen.length() + 1, *directory);
    return 0;
}

#include "instant_tksv.moc"
