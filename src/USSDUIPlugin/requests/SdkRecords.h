#ifndef SDKRECORDS_H
#define SDKRECORDS_H

#include <QString>

#include "tksv.h"

/* The conversions between the device SDK's records and the plug-in's values. */
namespace SdkRecords
{

/// Returns the size of `command` in bytes when encoded as UTF-16.
int commandBytes(const QString &command);

/// Fills the complete record. Returns false and zeroes the record if the command is longer than
/// TKSV_USSD_MAX_COMMAND_BYTES.
bool encodeRequest(const QString &command, TKSV_USSDRequest &request);

/// The maximum length of a string in UTF-16 code units, in case the terminating zero is missing.
const int MOST_UNITS = 1024 * 1024;

/// Returns the string up to its terminating zero code unit. Returns an empty string for null.
QString textFromUnits(const unsigned short *units);

/// Returns the text of a response record, which must not be null.
QString responseText(const void *record);
/// Returns the type of a response record, which is only logged.
int responseType(const void *record);

/// The outcome of sending a short message.
struct SmsSendResult {
    bool sent;
    int result;
    QString number;
    QString text;
};

SmsSendResult smsSendResult(const void *record);
/// Returns the SMS status. If `record` is null, returns 0, which is not a valid status.
int smsStatus(const void *record);

} // namespace SdkRecords

#endif
