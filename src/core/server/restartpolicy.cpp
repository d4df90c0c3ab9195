#include "server/restartpolicy.h"

std::optional<std::chrono::seconds> RestartPolicy::onUnexpectedStop(TimePoint at)
{
    while (!m_stops.empty() && at - m_stops.front() >= window)
        m_stops.pop_front();
    m_stops.push_back(at);
    ++m_inARow;
    if (int(m_stops.size()) >= maxStops)
        return std::nullopt;
    const int doublings = m_inARow - 1;
    return doublings >= 4 ? longestPause : std::chrono::seconds(1 << doublings);
}

void RestartPolicy::reset()
{
    m_stops.clear();
    m_inARow = 0;
}
