#ifndef REPLYTAP_H
#define REPLYTAP_H

#include <QMutex>
#include <QString>

namespace Dashboard
{

/** A reply from the network, exactly as delivered by the device. */
struct Reply {
    QString text;               // empty if the network rejected the code or the device failed
    bool isReceived = false;    // true if a reply has arrived
    bool asksForAnswer = false; // true if the network waits for an answer to a menu
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

private:
    static unsigned char onResponse(int event, void *data); // called from a thread of the SDK
    void keep(const Reply &reply);

    mutable QMutex m_mutex; // guards m_reply
    Reply m_reply;
};

} // namespace Dashboard

#endif
