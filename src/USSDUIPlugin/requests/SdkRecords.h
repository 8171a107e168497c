#ifndef SDKRECORDS_H
#define SDKRECORDS_H

#include <QString>

#include "tksv.h"

/* Functions that convert between the records of the device SDK and Qt types. */
namespace SdkRecords
{

/// Returns the number of bytes that `command` occupies in UTF-16.
int commandBytes(const QString &command);

/// Fills in `request`. If the command is longer than TKSV_USSD_MAX_COMMAND_BYTES, zeroes `request`
/// and returns false.
bool encodeRequest(const QString &command, TKSV_USSDRequest &request);

/// The maximum length of a string in UTF-16 code units. Protects against a missing terminator.
const int MOST_UNITS = 1024 * 1024;

/// Returns the null-terminated string, or an empty string if `units` is null.
QString textFromUnits(const unsigned short *units);

/// Returns the text of a response record, which must not be null.
QString responseText(const void *record);
/// Returns the type of a response record, which is used only for logging. `record` must not be
/// null.
int responseType(const void *record);

/// The result of sending a short message.
struct SmsSendResult {
    bool sent;
    int result;
    QString number;
    QString text;
};

SmsSendResult smsSendResult(const void *record);
/// Returns the SMS status, or 0 if `record` is null. 0 is not a valid status.
int smsStatus(const void *record);

} // namespace SdkRecords

#endif
