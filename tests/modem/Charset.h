#ifndef MODEM_CHARSET_H
#define MODEM_CHARSET_H

#include <optional>
#include <string>
#include <vector>

/*
 * The text encodings of 3GPP TS 27.007 (+CSCS) and 3GPP TS 23.038. The tests themselves use UTF-8.
 */

namespace FakeModems
{

using Bytes = std::vector<unsigned char>;

std::string toHex(const Bytes &bytes);
/// Returns no value if the string is not hexadecimal or has an odd length.
std::optional<Bytes> fromHex(const std::string &hex);

enum class Charset { Ucs2, Gsm, Ira };

/// Returns the name that +CSCS uses, for example "UCS2".
const char *charsetName(Charset charset);
std::optional<Charset> charsetOf(const std::string &name);

/// Returns the encoded text as hex digits. A character that the charset lacks is replaced by a
/// question mark.
std::string encodeText(const std::string &text, Charset charset);
/// Decodes the hex digits. Returns a string that is not hexadecimal unchanged.
std::string decodeText(const std::string &raw, Charset charset);

/// Decodes UTF-16BE. Replaces an unpaired surrogate by U+FFFD.
std::string fromUcs2(const Bytes &bytes);
/// Decodes text in the default alphabet, with one septet per byte (3GPP TS 23.038, 6.2.1).
std::string fromSeptets(const Bytes &septets);
/// Returns no value if a character is missing from both the default alphabet and its extension
/// table.
std::optional<Bytes> toSeptets(const std::string &text);
/// Unpacks `count` septets. Skips the first `skippedBits` bits of the packed bytes.
Bytes unpackSeptets(const Bytes &packed, std::size_t count, std::size_t skippedBits);

} // namespace FakeModems

#endif
