#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

// A single-shot timer measured on a clock that tests can move. It sleeps until its deadline,
// but never longer than `longestSleep`, so that a clock moved forward is noticed in time.
class ClockTimer : public QObject
{
    Q_OBJECT

public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    ClockTimer(Clock clock, std::chrono::milliseconds longestSleep, QObject *parent = nullptr);

    // Restarts the timer when it already runs.
    void start(std::chrono::milliseconds delay);
    void stop();
    bool isActive() const { return m_active; }
    // From its start until it fires.
    std::chrono::milliseconds interval() const { return m_interval; }

Q_SIGNALS:
    void timeout();

private:
    void check();

    Clock m_clock;
    std::chrono::milliseconds m_longestSleep;
    std::chrono::milliseconds m_interval { 0 };
    std::chrono::steady_clock::time_point m_deadline;
    bool m_active = false;
    QTimer m_timer;
};
