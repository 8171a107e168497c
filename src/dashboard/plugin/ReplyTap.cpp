#include "ReplyTap.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMutexLocker>

#include <atomic>

#include "tksv_device.h"

namespace Dashboard
{

namespace
{

const int NETWORK_WAITS = 1; // the <m> of +CUSD (3GPP TS 27.007)

const int MOST_UNTAKEN = 20;

/// Returns the command to which the current call-back belongs.
QString answeredCode()
{
    TKSV_SessionInfo session = {};
    TKSV_Device_GetSession(&session);
    return QString::fromUtf8(session.request);
}

std::atomic<ReplyTap *> listening(nullptr);

} // namespace

ReplyTap::ReplyTap()
{
    listening = this;
    TKSV_USSDSrv_RegisterUSSDCallback(onResponse);
}

ReplyTap::~ReplyTap()
{
    TKSV_USSDSrv_UnRegisterUSSDCallback(onResponse); // waits until a running call-back has returned
    listening = nullptr;
}

void ReplyTap::clear()
{
    QMutexLocker lock(&m_mutex);
    m_reply = Reply();
}

void ReplyTap::expectAnswer()
{
    Reply question;
    question.isReceived = true;
    question.asksForAnswer = true;
    keep(question);
}

Reply ReplyTap::reply() const
{
    QMutexLocker lock(&m_mutex);
    return m_reply;
}

void ReplyTap::setListener(const std::function<void()> &listener)
{
    QMutexLocker lock(&m_listenerMutex);
    m_listener = listener;
}

QList<Reply> ReplyTap::takeReplies()
{
    QMutexLocker lock(&m_mutex);
    const QList<Reply> replies = m_untaken;
    m_untaken.clear();
    return replies;
}

unsigned char ReplyTap::onResponse(int, void *data)
{
    ReplyTap *tap = listening;
    const TKSV_USSDResponse *response = static_cast<const TKSV_USSDResponse *>(data);
    if (!tap || !response)
        return 0;
    Reply reply;
    reply.text = QString::fromUtf16(reinterpret_cast<const char16_t *>(response->text));
    reply.isReceived = true;
    reply.asksForAnswer = response->type == NETWORK_WAITS;
    reply.code = answeredCode();
    tap->keep(reply);
    return 0; // only the return value of the plug-in's call-back is significant
}

void ReplyTap::keep(const Reply &reply)
{
    {
        QMutexLocker lock(&m_mutex);
        m_reply = reply;
        if (!reply.text.isEmpty() || !reply.code.isEmpty())
            m_untaken << reply; // the reply that expectAnswer() creates is empty and is not added
        if (m_untaken.size() > MOST_UNTAKEN)
            m_untaken.removeFirst();
    }
    QMutexLocker lock(&m_listenerMutex);
    if (m_listener)
        m_listener();
    // The event wakes waitUntil(), which checks its condition after each event.
    QCoreApplication::postEvent(QCoreApplication::instance(), new QEvent(QEvent::User));
}

} // namespace Dashboard
