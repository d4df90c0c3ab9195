#pragma once

#include <QHash>
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
    // Who is guessing the code: the addresses ignored after their wrong codes, and all that tried
    // one once the code was switched off for too many; empty again with a fresh code.
    Q_PROPERTY(QStringList guessers READ guessers NOTIFY guessersChanged)

public:
    using Clock = std::function<std::chrono::system_clock::time_point()>;

    static constexpr std::chrono::seconds lifetime { 300 };
    // At most this many guesses per code, a chance of 1 in 100,000 to find it; one sender's
    // share is smaller, so that a sender alone cannot switch pairing off for everyone.
    static constexpr int maxFailedAttempts = 10;
    static constexpr int maxFailedAttemptsPerAddress = 3;

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
    // A wrong code: a sender's last allowed one has it ignored for the rest of the code, and the
    // last allowed one in all switches pairing off.
    void recordFailedAttempt(const QString &address);
    // The sender guessed too often: its requests are refused without their code being compared.
    bool ignores(const QString &address) const;
    QStringList guessers() const { return m_guessers; }
    // One line for the screens and quivractl: someone is guessing, from where.
    static QString describeGuessers(const QStringList &addresses);
    // Switches off once the code's time is up; its own timer calls it, tests after moving
    // the clock.
    void expireIfDue();

    static QString generateToken();

Q_SIGNALS:
    void isPairingChanged();
    void tokenChanged();
    void expiresAtChanged();
    void guessersChanged();

private:
    void setPairing(bool on);
    void issueToken();
    void addGuesser(const QString &address);

    Clock m_clock;
    bool m_isPairing = false;
    // Off by expiry or by too many wrong guesses, not by a person or a pairing.
    bool m_offByItself = false;
    QString m_token;
    std::chrono::system_clock::time_point m_expiresAt;
    int m_failedAttempts = 0;
    // The senders of wrong codes, in the order of their first, and how many each sent.
    QStringList m_failedAddresses;
    QHash<QString, int> m_failedPerAddress;
    QStringList m_guessers;
    // A steady backstop: the wall clock may be set back while a code is shown.
    QTimer m_expiry;
};
