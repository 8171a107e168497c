#ifndef MODEM_SMSPDU_H
#define MODEM_SMSPDU_H

#include <optional>
#include <string>

namespace modem
{

/** A short message, or one part of a long one, as it went out (SMS-SUBMIT, 3GPP TS 23.040). */
struct SubmittedSms {
    std::string number; // international ones begin with +
    std::string text;   // UTF-8; of a message of 8-bit data, its octets
    int reference = 0;  // the same in all parts of a message
    int parts = 1;
    int part = 1; // from 1
};

/// The message in a PDU of AT+CMGS: hex digits, service centre first. Nothing when it is malformed
/// or `length` (octets behind the service centre, as in the command) is wrong.
std::optional<SubmittedSms> decodeSubmit(const std::string &hex, std::size_t length);

} // namespace modem

#endif
