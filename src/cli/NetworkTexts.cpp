#include "NetworkTexts.h"

namespace Cli
{

NetworkTexts::NetworkTexts(Waits &waits) : m_waits(waits)
{
    TKSV_Device_SetTextCallback(receive, this);
}

NetworkTexts::~NetworkTexts()
{
    TKSV_Device_SetTextCallback(nullptr, nullptr);
}

bool NetworkTexts::isEmpty() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_texts.empty();
}

NetworkText NetworkTexts::take()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    NetworkText oldest = m_texts.front();
    m_texts.pop_front();
    return oldest;
}

void NetworkTexts::receive(void *self, const TKSV_NetworkText *text)
{
    auto *const texts = static_cast<NetworkTexts *>(self);
    {
        const std::lock_guard<std::mutex> lock(texts->m_mutex);
        texts->m_texts.push_back({text->receivedAt, text->waitsForAnswer != 0, text->text});
    }
    texts->m_waits.wake();
}

} // namespace Cli
