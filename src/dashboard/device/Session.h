#ifndef SESSION_H
#define SESSION_H

#include <QString>

namespace Dashboard
{

/** The state of the program's USSD session, which all windows share. */
struct Session {
    int state = 0;              // a TKSV_SessionState
    unsigned long requests = 0; // the number of requests that the device has accepted
    QString request;            // the most recent accepted request

    bool isInFlight() const;
    bool waitsForAnswer() const;
};

/// Reads the session from the device SDK. Returns immediately. May be called from any thread.
Session readSession();

} // namespace Dashboard

#endif
