#ifndef MODEM_CHARSET_H
#define MODEM_CHARSET_H

#include <optional>
#include <string>
#include <vector>

/* The text encodings of 3GPP TS 27.007 (+CSCS) and 3GPP TS 23.038; our own side is UTF-8. */

namespace modem
{

using Bytes = std::vector<unsigned char>;

std::string toHex(const Bytes &bytes);
/// Nothing when the text is not hexadecimal or of odd length.
std::optional<Bytes> fromHex(const std::string &hex);

enum class Charset { Ucs2, Gsm, Ira };

/// The name in +CSCS, "UCS2" for example.
const char *charsetName(Charset charset);
std::optional<Charset> charsetOf(const std::string &name);

/// Hex digits of the text. What the charset does not have becomes a question mark.
std::string encodeText(const std::string &text, Charset charset);
/// The text behind the hex digits; what is no hex is the text itself.
std::string decodeText(const std::string &raw, Charset charset);

/// The text behind UTF-16BE bytes; a lone surrogate becomes U+FFFD.
std::string fromUcs2(const Bytes &bytes);
/// Characters of the default alphabet, one septet in each byte (3GPP TS 23.038, 6.2.1).
std::string fromSeptets(const Bytes &septets);
/// Nothing when a character is not in the default alphabet or its extension.
std::optional<Bytes> toSeptets(const std::string &text);
/// `count` septets that begin `skippedBits` bits into the packed bytes.
Bytes unpackSeptets(const Bytes &packed, std::size_t count, std::size_t skippedBits);

} // namespace modem

#endif
