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
    QString text;               // empty if the network refused the code or the device failed
    bool isReceived = false;    // true if a reply has arrived
    bool asksForAnswer = false; // true if the network expects an answer
    QString code; // the command to which the reply belongs; empty for a network-initiated message
};

/**
 * Receives the same replies from the device as the plug-in. The transcript of the plug-in is not
 * sufficient, because its markup does not preserve white space or brackets. Only one tap may exist
 * at a time. It must be constructed before the plug-in is loaded, so that it receives each reply
 * before the plug-in does.
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
    /// Records that the network expects an answer to a message that the tap has not received. May
    /// be called from any thread.
    void expectAnswer();
    /// Returns the most recent reply. May be called from any thread.
    Reply reply() const;

    /// Sets a listener, which is called from a thread of the SDK after each reply and must return
    /// immediately. A null function removes the listener. After setListener() has returned, the
    /// previous listener is not running and will not be called again.
    void setListener(const std::function<void()> &listener);
    /// Returns the replies that have arrived since the last call, starting with the oldest one, but
    /// at most the 20 most recent ones. May be called from any thread.
    QList<Reply> takeReplies();

private:
    static unsigned char onResponse(int event, void *data); // called from a thread of the SDK
    void keep(const Reply &reply);

    mutable QMutex m_mutex; // guards the two members below
    Reply m_reply;
    QList<Reply> m_untaken;
    QMutex m_listenerMutex; // guards m_listener; locked while the listener is running
    std::function<void()> m_listener;
};

} // namespace Dashboard

Q_DECLARE_METATYPE(Dashboard::Reply)

#endif
