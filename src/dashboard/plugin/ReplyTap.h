#ifndef REPLYTAP_H
#define REPLYTAP_H

#include <QList>
#include <QMetaType>
#include <QMutex>
#include <QString>

#include <functional>

namespace Dashboard
{

/** A reply from the network, exactly as delivered by the device. */
struct Reply {
    QString text;               // empty if the network rejected the code or the device failed
    bool isReceived = false;    // true if a reply has arrived
    bool asksForAnswer = false; // true if the network waits for an answer to a menu
    QString code; // the command that the reply answers; empty if the network initiated the message
};

/**
 * Receives the device's replies in addition to the plug-in. The plug-in's transcript is not used,
 * because it is markup, which does not preserve white space or brackets. Only one tap may exist at
 * a time. It must be constructed before the plug-in is loaded, so that it receives each reply
 * first.
 */
class ReplyTap
{
public:
    ReplyTap();
    ~ReplyTap();
    ReplyTap(const ReplyTap &) = delete;
    ReplyTap &operator=(const ReplyTap &) = delete;

    /// Discards the most recent reply. May be called from any thread.
    void clear();
    /// Records that the network waits for an answer to a message that the tap has not received. May
    /// be called from any thread.
    void expectAnswer();
    /// Returns the most recent reply. May be called from any thread.
    Reply reply() const;

    /// Sets a function that is called from a thread of the SDK after each reply. The function must
    /// return immediately. A null function removes it. When this function has returned, the
    /// previous function is not running and will not run again.
    void setListener(const std::function<void()> &listener);
    /// Returns the replies that have arrived since the last call, the oldest first. At most the 20
    /// most recent replies are kept. May be called from any thread.
    QList<Reply> takeReplies();

private:
    static unsigned char onResponse(int event, void *data); // called from a thread of the SDK
    void keep(const Reply &reply);

    mutable QMutex m_mutex; // guards the two members below
    Reply m_reply;
    QList<Reply> m_untaken;
    QMutex m_listenerMutex; // guards m_listener, and is locked while it runs
    std::function<void()> m_listener;
};

} // namespace Dashboard

Q_DECLARE_METATYPE(Dashboard::Reply)

#endif
