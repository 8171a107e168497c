#ifndef REPLYTIMEOUT_H
#define REPLYTIMEOUT_H

namespace Formats
{

/// Returns how long the plug-in waits for a reply of the network, in milliseconds: 30 s, or what
/// the environment variable USSD_REPLY_TIMEOUT_MS says. The plug-in reads it when it is first used.
int replyTimeout();

/// Sets the variable for a plug-in that is loaded later, unless the user has set it.
void setReplyTimeout(int milliseconds);

} // namespace Formats

#endif
