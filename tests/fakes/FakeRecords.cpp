#include "FakeRecords.h"

#include <algorithm>
#include <cstring>

namespace
{
const int DEAD_BYTE = 0xDB;
const std::size_t RESPONSE_TEXT_OFFSET = 8;
} // namespace

FakeText::FakeText(const std::u16string &text) : m_units(text.begin(), text.end())
{
    m_units.push_back(0);
}

FakeText::~FakeText()
{
    std::memset(m_units.data(), DEAD_BYTE, m_units.size() * sizeof(unsigned short));
}

FakeResponse::FakeResponse(int type, const std::u16string &text)
{
    FakeText units(text);
    const std::size_t textBytes = (text.size() + 1) * sizeof(unsigned short);
    m_words.resize((RESPONSE_TEXT_OFFSET + textBytes + 3) / 4);
    std::memcpy(m_words.data(), &type, sizeof type);
    std::memcpy(m_words.data() + RESPONSE_TEXT_OFFSET / 4, units.units(), textBytes);
}

FakeResponse::~FakeResponse()
{
    std::memset(m_words.data(), DEAD_BYTE, m_words.size() * 4);
}

std::u16string textOf(const unsigned short *units)
{
    std::u16string text;
    for (; units && *units; ++units)
        text.push_back(static_cast<char16_t>(*units));
    return text;
}

std::u16string textOf(const TKSV_USSDRequest &request)
{
    const std::size_t units = request.length / sizeof(unsigned short);
    const std::size_t area = TKSV_USSD_MAX_UNITS;
    return std::u16string(request.text, request.text + std::min(units, area));
}

std::vector<unsigned char> bytesOf(const TKSV_USSDRequest &request)
{
    std::vector<unsigned char> bytes(sizeof request);
    std::memcpy(bytes.data(), &request, sizeof request);
    return bytes;
}
