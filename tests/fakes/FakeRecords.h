#ifndef FAKERECORDS_H
#define FAKERECORDS_H

#include "fake_tksv.h"

#include <cstdint>

/*
 * Records as the SDK lays them out in memory. Each is overwritten when it dies, so that a client
 * that reads one too late reads nonsense instead of the right text by luck.
 */

/// A zero-terminated copy of a text in the SDK's units.
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
    std::vector<std::uint32_t> m_words; // words, so that the record is aligned
};

/// The text of a zero-terminated array; empty for a null pointer.
std::u16string textOf(const unsigned short *units);

/// The text of a request, as far as its length and its area go.
std::u16string textOf(const TKSV_USSDRequest &request);

std::vector<unsigned char> bytesOf(const TKSV_USSDRequest &request);

#endif
