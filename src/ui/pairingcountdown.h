#pragma once

#include <QObject>
#include <QTimer>

// The panel's five-minute countdown while the pairing code is shown. It starts at 5:00 each
// time the code appears; at the end, or on "Stop Pairing", it stops itself first and then asks
// once for pairing to stop, so no later tick can ask again.
class PairingCountdown : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double timeRemaining READ timeRemaining NOTIFY timeRemainingChanged)
    Q_PROPERTY(QString text READ text NOTIFY timeRemainingChanged)
    Q_PROPERTY(bool urgent READ urgent NOTIFY timeRemainingChanged)
    Q_PROPERTY(bool active READ isActive NOTIFY activeChanged)

public:
    static constexpr double duration = 300;

    // Tests drive tick() themselves and pass ownTimer = false.
    explicit PairingCountdown(QObject *parent = nullptr, bool ownTimer = true);

    double timeRemaining() const { return m_timeRemaining; }
    QString text() const;
    // Under a minute left: shown in orange.
    bool urgent() const { return m_timeRemaining < 60; }
    bool isActive() const { return m_active; }

    Q_INVOKABLE void start();
    Q_INVOKABLE void stop();
    // "Stop Pairing": stop, then ask.
    Q_INVOKABLE void requestStop();
    void tick();

Q_SIGNALS:
    void timeRemainingChanged();
    void activeChanged();
    void stopPairing();

private:
    void setActive(bool active);

    QTimer m_timer;
    bool m_ownTimer;
    bool m_active = false;
    double m_timeRemaining = duration;
};
