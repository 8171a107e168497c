#ifndef MODEM_SMSPDU_H
#define MODEM_SMSPDU_H

#include <optional>
#include <string>

namespace FakeModems
{

/** A submitted short message, or one part of a long message (SMS-SUBMIT, 3GPP TS 23.040). */
struct SubmittedSms {
    std::string number; // an international number starts with +
    std::string text;   // UTF-8, or the unchanged octets of a message with 8-bit data
    int reference = 0;  // identical in all parts of a message
    int parts = 1;
    int part = 1; // counted from 1
};

/// Decodes the PDU of AT+CMGS, given as hex digits that start with the service centre. `length` is
/// the parameter of the command, which is the number of octets after the service centre. Returns no
/// value if the PDU is malformed or has a different length.
std::optional<SubmittedSms> decodeSubmit(const std::string &hex, std::size_t length);

} // namespace FakeModems

#endif
