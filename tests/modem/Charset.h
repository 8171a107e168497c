#ifndef MODEM_CHARSET_H
#define MODEM_CHARSET_H

#include <optional>
#include <string>
#include <vector>

/*
 * The character sets of 3GPP TS 27.007 (+CSCS) and 3GPP TS 23.038. The tests use UTF-8 internally.
 */

namespace FakeModems
{

using Bytes = std::vector<unsigned char>;

std::string toHex(const Bytes &bytes);
/// Decodes a hexadecimal string. Returns std::nullopt if the string is not hexadecimal or has an
/// odd length.
std::optional<Bytes> fromHex(const std::string &hex);

enum class Charset { Ucs2, Gsm, Ira };

/// Returns the name of the character set for +CSCS, for example "UCS2".
const char *charsetName(Charset charset);
std::optional<Charset> charsetOf(const std::string &name);

/// Returns the encoded text as hexadecimal digits. Characters that are missing from the character
/// set are replaced with question marks.
std::string encodeText(const std::string &text, Charset charset);
/// Decodes a hexadecimal string. Returns a string that is not hexadecimal unchanged.
std::string decodeText(const std::string &raw, Charset charset);

/// Decodes UTF-16BE. Unpaired surrogates are replaced with U+FFFD.
std::string fromUcs2(const Bytes &bytes);
/// Decodes text in the default alphabet, which contains one septet per byte (3GPP TS 23.038,
/// 6.2.1).
std::string fromSeptets(const Bytes &septets);
/// Encodes text in the default alphabet, with one septet per byte. Returns std::nullopt if a
/// character is missing from both the alphabet and its extension table.
std::optional<Bytes> toSeptets(const std::string &text);
/// Unpacks `count` septets after skipping the first `skippedBits` bits.
Bytes unpackSeptets(const Bytes &packed, std::size_t count, std::size_t skippedBits);

} // namespace FakeModems

#endif
