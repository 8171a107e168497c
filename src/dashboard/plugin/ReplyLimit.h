#ifndef REPLYLIMIT_H
#define REPLYLIMIT_H

/// How long the plug-in waits for a reply, in milliseconds: 30 s unless $USSD_REPLY_TIMEOUT_MS says
/// otherwise.
int replyLimit();

/// Sets that for the plug-in, which asks when it is first used, unless somebody did already.
void setReplyLimit(int milliseconds);

#endif
