#pragma once

#include <chrono>
#include <deque>
#include <optional>

// When an etserver that stopped by itself is started again: 1, 2, 4, 8 s after the first
// unexpected stops in a row and 16 s after any further one, but never again once 5 have come
// within any 10 minutes. A server that crashes at once would otherwise be restarted forever.
class RestartPolicy
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;

    static constexpr int maxStops = 5;
    static constexpr std::chrono::minutes window { 10 };
    static constexpr std::chrono::seconds longestPause { 16 };

    // Records a stop; the pause before the next start, or nothing when it gives up.
    std::optional<std::chrono::seconds> onUnexpectedStop(TimePoint at);
    // Unexpected stops within the window up to the last one recorded.
    int recentStops() const { return int(m_stops.size()); }
    // A start or stop the user asked for begins afresh.
    void reset();

private:
    std::deque<TimePoint> m_stops;
    int m_inARow = 0;
};
