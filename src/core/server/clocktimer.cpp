#include "server/clocktimer.h"

#include <algorithm>

ClockTimer::ClockTimer(Clock clock, std::chrono::milliseconds longestSleep, QObject *parent)
    : QObject(parent)
    , m_clock(std::move(clock))
    , m_longestSleep(longestSleep)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &ClockTimer::check);
}

void ClockTimer::start(std::chrono::milliseconds delay)
{
    m_interval = delay;
    m_deadline = m_clock() + delay;
    m_active = true;
    check();
}

void ClockTimer::stop()
{
    m_active = false;
    m_timer.stop();
}

void ClockTimer::check()
{
    if (!m_active)
        return;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(m_deadline - m_clock());
    if (left.count() > 0) {
        m_timer.start(std::min(left, m_longestSleep));
        return;
    }
    m_active = false;
    Q_EMIT timeout();
}
