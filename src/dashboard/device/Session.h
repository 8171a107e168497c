#ifndef SESSION_H
#define SESSION_H

#include <QString>

namespace Dashboard
{

/** The program's USSD session, whichever window uses it. */
struct Session {
    int state = 0;              // a TKSV_SessionState
    unsigned long requests = 0; // number of requests that the device has accepted
    QString request;            // the newest accepted request

    bool isInFlight() const;
    bool waitsForAnswer() const;
};

/// Reads the session from the device SDK. Returns immediately. May be called from any thread.
Session readSession();

} // namespace Dashboard

#endif
