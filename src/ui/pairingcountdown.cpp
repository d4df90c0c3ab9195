#include "ui/pairingcountdown.h"

#include "ui/formats.h"

PairingCountdown::PairingCountdown(QObject *parent, bool ownTimer)
    : QObject(parent)
    , m_ownTimer(ownTimer)
{
    m_timer.setInterval(1000);
    connect(&m_timer, &QTimer::timeout, this, &PairingCountdown::tick);
}

QString PairingCountdown::text() const
{
    return formats::countdown(m_timeRemaining);
}

void PairingCountdown::start()
{
    m_timeRemaining = duration;
    Q_EMIT timeRemainingChanged();
    setActive(true);
    if (m_ownTimer)
        m_timer.start();
}

void PairingCountdown::stop()
{
    m_timer.stop();
    setActive(false);
}

void PairingCountdown::requestStop()
{
    stop();
    Q_EMIT stopPairing();
}

void PairingCountdown::tick()
{
    if (!m_active)
        return;
    if (m_timeRemaining > 0) {
        m_timeRemaining -= 1;
        Q_EMIT timeRemainingChanged();
    } else {
        requestStop();
    }
}

void PairingCountdown::setActive(bool active)
{
    if (m_active == active)
        return;
    m_active = active;
    Q_EMIT activeChanged();
}
