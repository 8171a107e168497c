#include "SmsPdu.h"

#include "Charset.h"

namespace FakeModems
{

namespace
{

const unsigned TYPE_MASK = 0x03;
const unsigned TYPE_SUBMIT = 0x01;
const unsigned HAS_USER_DATA_HEADER = 0x40;
const unsigned INTERNATIONAL = 0x91;

/**
 * Reads octets in sequence. Reading beyond the end returns zeros, and isGood() then returns false.
 */
class Reader
{
public:
    explicit Reader(const Bytes &bytes) : m_bytes(bytes) {}

    unsigned octet() { return m_place < m_bytes.size() ? m_bytes[m_place++] : fail(); }
    Bytes octets(std::size_t count)
    {
        if (count > m_bytes.size() - m_place) {
            fail();
            return Bytes();
        }
        const auto begin = m_bytes.begin() + static_cast<std::ptrdiff_t>(m_place);
        m_place += count;
        return Bytes(begin, begin + static_cast<std::ptrdiff_t>(count));
    }
    std::size_t left() const { return m_bytes.size() - m_place; }
    bool isGood() const { return m_good; }

private:
    unsigned fail()
    {
        m_good = false;
        m_place = m_bytes.size();
        return 0;
    }

    const Bytes &m_bytes;
    std::size_t m_place = 0;
    bool m_good = true;
};

/// Reads an address (3GPP TS 23.040, 9.1.2.5). Each octet contains two digits, with the first digit
/// in the lower half.
std::string readAddress(Reader &reader)
{
    const char symbols[] = "0123456789*#abc";
    const std::size_t digits = reader.octet();
    std::string number(reader.octet() == INTERNATIONAL ? "+" : "");
    const Bytes packed = reader.octets((digits + 1) / 2);
    for (std::size_t i = 0; i < digits && i / 2 < packed.size(); ++i) {
        const unsigned digit = packed[i / 2] >> (i % 2 ? 4 : 0) & 0xF;
        number += digit < sizeof symbols - 1 ? symbols[digit] : '?';
    }
    return number;
}

/// Returns the length of the validity period, whose format is specified by bits 3 and 4 of the
/// first octet (3GPP TS 23.040, 9.2.3.3).
std::size_t validityOctets(unsigned first)
{
    switch (first >> 3 & 0x03) {
    case 0:
        return 0;
    case 2:
        return 1;
    default:
        return 7;
    }
}

/// Reads the header elements for concatenated messages: 00 (8-bit reference) and 08 (16-bit
/// reference) (3GPP TS 23.040, 9.2.3.24).
void readHeader(const Bytes &header, SubmittedSms &sms)
{
    for (std::size_t i = 0; i + 1 < header.size(); i += 2U + header[i + 1]) {
        const std::size_t wide = header[i] == 0x08 ? 1 : 0;
        const bool isConcatenation = header[i] == 0x00 || wide;
        if (!isConcatenation || i + 4 + wide >= header.size())
            continue;
        sms.reference = header[i + 2] << (8 * wide) | (wide ? header[i + 3] : 0);
        sms.parts = header[i + 3 + wide];
        sms.part = header[i + 4 + wide];
    }
}

enum class Alphabet { Default, Data, Ucs2 };

/// Returns the alphabet for the data coding scheme. Supports the general data coding group and the
/// message class group of 3GPP TS 23.038, chapter 4.
Alphabet alphabetOf(unsigned coding)
{
    const unsigned alphabet = coding >> 2 & 0x03;
    if ((coding & 0xF0) == 0xF0)
        return coding & 0x04 ? Alphabet::Data : Alphabet::Default;
    if (alphabet == 2)
        return Alphabet::Ucs2;
    return alphabet == 1 ? Alphabet::Data : Alphabet::Default;
}

/// Decodes the text of a message. `length` is the number of septets in the default alphabet,
/// including the header and the fill bits. In other alphabets, it is the number of octets.
std::string decodeUserData(const Bytes &data, std::size_t headerSize, std::size_t length,
                           Alphabet alphabet)
{
    const Bytes body(data.begin() + static_cast<std::ptrdiff_t>(headerSize), data.end());
    if (alphabet == Alphabet::Ucs2)
        return fromUcs2(body);
    if (alphabet == Alphabet::Data)
        return std::string(body.begin(), body.end());
    const std::size_t headerSeptets = (headerSize * 8 + 6) / 7;
    return length < headerSeptets
               ? std::string()
               : fromSeptets(unpackSeptets(data, length - headerSeptets, headerSeptets * 7));
}

void readUserData(Reader &reader, unsigned coding, bool hasHeader, SubmittedSms &sms)
{
    const std::size_t length = reader.octet();
    const Alphabet alphabet = alphabetOf(coding);
    const bool isPacked = alphabet == Alphabet::Default;
    const Bytes data = reader.octets(isPacked ? (length * 7 + 7) / 8 : length);
    const std::size_t headerSize = hasHeader && !data.empty() ? 1U + data[0] : 0;
    if (headerSize > data.size())
        return;
    if (headerSize)
        readHeader(Bytes(data.begin() + 1, data.begin() + static_cast<std::ptrdiff_t>(headerSize)),
                   sms);
    sms.text = decodeUserData(data, headerSize, length, alphabet);
}

} // namespace

std::optional<SubmittedSms> decodeSubmit(const std::string &hex, std::size_t length)
{
    const std::optional<Bytes> bytes = fromHex(hex);
    if (!bytes)
        return std::nullopt;
    Reader reader(*bytes);
    reader.octets(reader.octet()); // the service centre
    const bool lengthIsRight = reader.left() == length;
    const unsigned first = reader.octet();
    reader.octet(); // the message reference, which is set by the modem
    SubmittedSms sms;
    sms.number = readAddress(reader);
    reader.octet(); // the protocol identifier
    const unsigned coding = reader.octet();
    reader.octets(validityOctets(first));
    readUserData(reader, coding, (first & HAS_USER_DATA_HEADER) != 0, sms);
    if (!reader.isGood() || !lengthIsRight || (first & TYPE_MASK) != TYPE_SUBMIT)
        return std::nullopt;
    return sms;
}

} // namespace FakeModems
