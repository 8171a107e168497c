#ifndef FAKERECORDS_H
#define FAKERECORDS_H

#include "fake_tksv.h"

#include <cstdint>

/*
 * Records in the memory layout of the SDK. A record is overwritten when it is deleted, so that a
 * client that reads it too late does not find the correct string by chance.
 */

/// A zero-terminated copy of a string in the SDK's character units.
class FakeText
{
public:
    explicit FakeText(const std::u16string &text);
    ~FakeText();
    FakeText(const FakeText &) = delete;
    FakeText &operator=(const FakeText &) = delete;
    unsigned short *units() { return m_units.data(); }

private:
    std::vector<unsigned short> m_units;
};

class FakeResponse
{
public:
    FakeResponse(int type, const std::u16string &text);
    ~FakeResponse();
    FakeResponse(const FakeResponse &) = delete;
    FakeResponse &operator=(const FakeResponse &) = delete;
    void *data() { return m_words.data(); }

private:
    std::vector<std::uint32_t> m_words; // 32-bit words ensure that the record is aligned
};

/// Converts a zero-terminated string. Returns an empty string for a null pointer.
std::u16string textOf(const unsigned short *units);

/// Returns the string in a request, limited to the size of the record's array.
std::u16string textOf(const TKSV_USSDRequest &request);

std::vector<unsigned char> bytesOf(const TKSV_USSDRequest &request);

#endif
