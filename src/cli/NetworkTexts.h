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

/** A network-initiated message. */
struct NetworkText {
    time_t receivedAt = 0;
    bool waitsForAnswer = false;
    std::string text;
};

/**
 * Receives network-initiated messages on a thread of the library and passes them to the main
 * thread.
 */
class NetworkTexts
{
public:
    /// Every message ends the current sleep of `waits`, which must outlive the object.
    explicit NetworkTexts(Waits &waits);
    ~NetworkTexts();
    NetworkTexts(const NetworkTexts &) = delete;
    NetworkTexts &operator=(const NetworkTexts &) = delete;

    bool isEmpty() const;
    NetworkText take(); ///< removes and returns the oldest message; there must be one

private:
    static void receive(void *self, const TKSV_NetworkText *text);

    Waits &m_waits;
    mutable std::mutex m_mutex; // guards m_texts
    std::deque<NetworkText> m_texts;
};

} // namespace Cli

#endif
