#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <functional>

// The one owner of pairing mode: whether it is on, the code, when the code expires, the wrong
// guesses made against it, and its single use. Every screen's countdown renders expiresAt();
// none of them switches pairing on or off by itself.
class PairingSession : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isPairing READ isPairing NOTIFY isPairingChanged)
    Q_PROPERTY(QString token READ token NOTIFY tokenChanged)
    // Milliseconds since the epoch on the session's clock; the last code's, also once off.
    Q_PROPERTY(qint64 expiresAt READ expiresAt NOTIFY expiresAtChanged)

public:
    using Clock = std::function<std::chrono::system_clock::time_point()>;

    static constexpr std::chrono::seconds lifetime { 300 };
    static constexpr int maxFailedAttempts = 5;

    explicit PairingSession(Clock clock = std::chrono::system_clock::now,
                            QObject *parent = nullptr);

    bool isPairing() const { return m_isPairing; }
    QString token() const { return m_token; }
    qint64 expiresAt() const;
    // Whole seconds until the code expires, never below zero; a code keeps its time when
    // pairing is switched off early.
    Q_INVOKABLE int secondsLeft() const;

    // On, with a fresh code and a fresh lifetime. afterSwitch runs between the switch and the
    // new code, where the address is refreshed when the user switches pairing on.
    void switchOn(const std::function<void()> &afterSwitch = {});
    void switchOff();
    // A fresh code and lifetime; back on when the session itself had switched off (the code
    // expired or was guessed at too often), left off when a person or a pairing switched it off.
    void renew();
    // Pairing mode is on and the code still good; a code found expired switches it off.
    bool acceptsPairing();
    // A wrong code or a request from a web page; the last allowed one switches pairing off.
    void recordFailedAttempt(const QString &address);
    // Switches off once the code's time is up; its own timer calls it, tests after moving
    // the clock.
    void expireIfDue();

    static QString generateToken();

Q_SIGNALS:
    void isPairingChanged();
    void tokenChanged();
    void expiresAtChanged();

private:
    void setPairing(bool on);
    void issueToken();

    Clock m_clock;
    bool m_isPairing = false;
    // Off by expiry or by too many wrong guesses, not by a person or a pairing.
    bool m_offByItself = false;
    QString m_token;
    std::chrono::system_clock::time_point m_expiresAt;
    int m_failedAttempts = 0;
    QStringList m_failedAddresses;
    // A steady backstop: the wall clock may be set back while a code is shown.
    QTimer m_expiry;
};
