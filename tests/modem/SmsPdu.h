#ifndef MODEM_SMSPDU_H
#define MODEM_SMSPDU_H

#include <optional>
#include <string>

namespace FakeModems
{

/** A submitted short message, or a part of a long one (SMS-SUBMIT, 3GPP TS 23.040). */
struct SubmittedSms {
    std::string number; // with a leading + if the number is international
    std::string text;   // UTF-8, or the unchanged octets if the message contains 8-bit data
    int reference = 0;  // the same in all parts of a message
    int parts = 1;
    int part = 1; // counted from 1
};

/// Decodes the hexadecimal PDU of AT+CMGS, which starts with the service centre. `length` is the
/// command's parameter, which is the number of octets after the service centre. Returns
/// std::nullopt if the PDU is malformed or has a different length.
std::optional<SubmittedSms> decodeSubmit(const std::string &hex, std::size_t length);

} // namespace FakeModems

#endif
