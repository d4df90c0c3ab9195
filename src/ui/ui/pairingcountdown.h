#pragma once

#include "pairing/pairingsession.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

// A rendering of the pairing code's expiry, nothing more: while running it shows the session's
// real time left, also after being hidden or when the code is renewed elsewhere. It never
// switches pairing; the setup window's screen renews the code when told the time is up.
class PairingCountdown : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(PairingSession *session READ session WRITE setSession NOTIFY sessionChanged)
    // Ticks only while shown: bound to the visibility of the view that shows it.
    Q_PROPERTY(bool running READ isRunning WRITE setRunning NOTIFY runningChanged)
    Q_PROPERTY(int timeRemaining READ timeRemaining NOTIFY timeRemainingChanged)
    Q_PROPERTY(QString text READ text NOTIFY timeRemainingChanged)
    Q_PROPERTY(bool urgent READ urgent NOTIFY timeRemainingChanged)

public:
    explicit PairingCountdown(QObject *parent = nullptr);

    PairingSession *session() const { return m_session; }
    void setSession(PairingSession *session);
    bool isRunning() const { return m_running; }
    void setRunning(bool running);
    int timeRemaining() const { return m_timeRemaining; }
    QString text() const;
    // Under a minute left: shown in orange.
    bool urgent() const { return m_timeRemaining < 60; }

    // One second passed. Tests call it themselves after manualTicks(true).
    Q_INVOKABLE void tick();
    // Countdowns made from now on leave their ticks to the caller.
    static void manualTicks(bool manual);

Q_SIGNALS:
    void sessionChanged();
    void runningChanged();
    void timeRemainingChanged();
    // Once per code, on the tick after the one that showed 0:00.
    void expired();

private:
    void refresh();

    QPointer<PairingSession> m_session;
    QTimer m_timer;
    bool m_running = false;
    int m_timeRemaining = 0;
    bool m_expiryAnnounced = false;
};
