#ifndef REPLYTAP_H
#define REPLYTAP_H

#include <QMutex>
#include <QString>

/** What the network said, unit by unit as the device handed it over. */
struct Reply {
    QString text;               // empty when the network refused or the device failed
    bool isReceived = false;    // false: nothing came
    bool asksForAnswer = false; // a menu is open
};

/**
 * Listens beside the plug-in to what the device receives, because the plug-in's transcript is
 * markup and keeps neither blanks nor brackets. One at a time; made before the plug-in is loaded,
 * so that it hears each reply first.
 */
class ReplyTap
{
public:
    ReplyTap();
    ~ReplyTap();
    ReplyTap(const ReplyTap &) = delete;
    ReplyTap &operator=(const ReplyTap &) = delete;

    /// Forgets what was heard. Any thread.
    void clear();
    /// The network waits for an answer, to a text that was heard elsewhere. Any thread.
    void expectAnswer();
    /// The newest reply. Any thread.
    Reply reply() const;

private:
    static unsigned char onResponse(int event, void *data); // on a thread of the SDK
    void keep(const Reply &reply);

    mutable QMutex m_mutex; // guards the reply
    Reply m_reply;
};

#endif
