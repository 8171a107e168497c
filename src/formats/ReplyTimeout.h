#ifndef REPLYTIMEOUT_H
#define REPLYTIMEOUT_H

namespace Formats
{

/// How long the plug-in waits for a reply of the network, in milliseconds.
const int STANDARD_REPLY_TIMEOUT = 30000;

/// Returns STANDARD_REPLY_TIMEOUT, or the milliseconds in the environment variable
/// USSD_REPLY_TIMEOUT_MS. The plug-in reads the variable when it is first used.
int replyTimeout();

/// Sets the variable for a plug-in that is loaded later, unless the user has set it.
void setReplyTimeout(int milliseconds);

} // namespace Formats

#endif
