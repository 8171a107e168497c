#ifndef CLI_NETWORKTEXTS_H
#define CLI_NETWORKTEXTS_H

#include <ctime>
#include <deque>
#include <mutex>
#include <string>

#include "tksv_device.h"
#include "Waits.h"

namespace Cli
{

/** A message that the network has sent of its own accord. */
struct NetworkText {
    time_t receivedAt = 0;
    bool waitsForAnswer = false;
    std::string text;
};

/** Collects the messages on the thread of the library and passes them to the main thread. */
class NetworkTexts
{
public:
    /// `waits` is woken for each message. It must outlive the object.
    explicit NetworkTexts(Waits &waits);
    ~NetworkTexts();
    NetworkTexts(const NetworkTexts &) = delete;
    NetworkTexts &operator=(const NetworkTexts &) = delete;

    bool isEmpty() const;
    NetworkText take(); ///< takes the oldest message; there must be one

private:
    static void receive(void *self, const TKSV_NetworkText *text);

    Waits &m_waits;
    mutable std::mutex m_mutex; // guards m_texts
    std::deque<NetworkText> m_texts;
};

} // namespace Cli

#endif
