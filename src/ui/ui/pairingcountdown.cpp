#include "ui/pairingcountdown.h"

#include "pairing/pairingsession.h"
#include "ui/formats.h"

#include <utility>

namespace {
bool s_manualTicks = false;
}

PairingCountdown::PairingCountdown(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(1000);
    connect(&m_timer, &QTimer::timeout, this, &PairingCountdown::tick);
}

void PairingCountdown::manualTicks(bool manual)
{
    s_manualTicks = manual;
}

QString PairingCountdown::text() const
{
    return formats::countdown(m_timeRemaining);
}

void PairingCountdown::setSession(PairingSession *session)
{
    if (session == m_session)
        return;
    if (m_session)
        disconnect(m_session, nullptr, this, nullptr);
    m_session = session;
    // A code renewed elsewhere shows at once, not a second later.
    if (m_session)
        connect(m_session, &PairingSession::expiresAtChanged, this, &PairingCountdown::refresh);
    refresh();
    Q_EMIT sessionChanged();
}

void PairingCountdown::setRunning(bool running)
{
    if (running == m_running)
        return;
    m_running = running;
    if (running) {
        refresh();
        if (!s_manualTicks)
            m_timer.start();
    } else {
        m_timer.stop();
    }
    Q_EMIT runningChanged();
}

void PairingCountdown::tick()
{
    if (!m_running)
        return;
    const bool showedZero = m_timeRemaining == 0;
    refresh();
    if (showedZero && m_timeRemaining == 0 && !std::exchange(m_expiryAnnounced, true))
        Q_EMIT expired();
}

void PairingCountdown::refresh()
{
    const int left = m_session ? m_session->secondsLeft() : 0;
    if (left > 0)
        m_expiryAnnounced = false;
    if (left == m_timeRemaining)
        return;
    m_timeRemaining = left;
    Q_EMIT timeRemainingChanged();
}
