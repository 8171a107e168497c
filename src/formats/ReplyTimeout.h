#ifndef REPLYTIMEOUT_H
#define REPLYTIMEOUT_H

namespace Formats
{

/// The default time that the plug-in waits for a reply from the network, in milliseconds.
const int STANDARD_REPLY_TIMEOUT = 30000;

/// Returns the number of milliseconds from the environment variable USSD_REPLY_TIMEOUT_MS, or else
/// STANDARD_REPLY_TIMEOUT. The plug-in reads the variable only once, when its library is loaded.
int replyTimeout();

/// Sets the environment variable for a plug-in that is loaded later. Does nothing if the user has
/// already set the variable.
void setReplyTimeout(int milliseconds);

} // namespace Formats

#endif
