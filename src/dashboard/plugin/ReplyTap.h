#ifndef REPLYTAP_H
#define REPLYTAP_H

#include <QMutex>
#include <QString>

namespace Dashboard
{

/** A reply from the network, exactly as the device delivered it. */
struct Reply {
    QString text;               // empty if the network rejected the code or the device failed
    bool isReceived = false;    // false if no reply has arrived
    bool asksForAnswer = false; // the network waits for an answer to a menu
};

/**
 * Receives the device's replies in parallel with the plug-in. The plug-in's transcript is not used,
 * because it is markup and preserves neither white space nor brackets. Only one tap may exist at a
 * time. It must be constructed before the plug-in is loaded, so that it receives each reply first.
 */
class ReplyTap
{
public:
    ReplyTap();
    ~ReplyTap();
    ReplyTap(const ReplyTap &) = delete;
    ReplyTap &operator=(const ReplyTap &) = delete;

    /// Discards the newest reply. May be called on any thread.
    void clear();
    /// Records that the network waits for an answer to a text that arrived in another way. May be
    /// called on any thread.
    void expectAnswer();
    /// Returns the newest reply. May be called on any thread.
    Reply reply() const;

private:
    static unsigned char onResponse(int event, void *data); // runs on a thread of the SDK
    void keep(const Reply &reply);

    mutable QMutex m_mutex; // guards the reply
    Reply m_reply;
};

} // namespace Dashboard

#endif
