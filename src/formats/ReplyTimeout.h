#ifndef REPLYTIMEOUT_H
#define REPLYTIMEOUT_H

namespace Formats
{

/// The default time that the plug-in waits for a reply from the network, in milliseconds.
const int STANDARD_REPLY_TIMEOUT = 30000;

/// Returns the value of the USSD_REPLY_TIMEOUT_MS environment variable in milliseconds, or
/// STANDARD_REPLY_TIMEOUT if it is not set or invalid. The plug-in reads the variable only once,
/// when its library is loaded.
int replyTimeout();

/// Sets the USSD_REPLY_TIMEOUT_MS environment variable, which affects a plug-in that is loaded
/// later. Has no effect if the user has already set the variable.
void setReplyTimeout(int milliseconds);

} // namespace Formats

#endif
