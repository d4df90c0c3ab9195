#include "pairing/pairingsession.h"

#include "platform/logging.h"

#include <QRandomGenerator>

#include <algorithm>
#include <limits>

PairingSession::PairingSession(Clock clock, QObject *parent)
    : QObject(parent)
    , m_clock(std::move(clock))
    , m_token(generateToken())
    , m_expiresAt(m_clock())
{
    m_expiry.setSingleShot(true);
    connect(&m_expiry, &QTimer::timeout, this, &PairingSession::expireIfDue);
}

QString PairingSession::generateToken()
{
    // Rejection sampling: 2^32 is not a multiple of 10, so the top values would bias the digits.
    constexpr quint32 limit = std::numeric_limits<quint32>::max() / 10 * 10;
    QString token;
    while (token.size() < 6) {
        const quint32 value = QRandomGenerator::system()->generate();
        if (value < limit)
            token.append(QLatin1Char(char('0' + value % 10)));
    }
    return token;
}

qint64 PairingSession::expiresAt() const
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(m_expiresAt.time_since_epoch()).count();
}

int PairingSession::secondsLeft() const
{
    using namespace std::chrono;
    // Rounded up, as a countdown reads: 0:00 only once the time is really up.
    const qint64 left = duration_cast<milliseconds>(m_expiresAt - m_clock()).count();
    return int(std::clamp<qint64>((left + 999) / 1000, 0, lifetime.count()));
}

void PairingSession::switchOn(const std::function<void()> &afterSwitch)
{
    setPairing(true);
    if (afterSwitch)
        afterSwitch();
    issueToken();
}

void PairingSession::switchOff()
{
    setPairing(false);
}

void PairingSession::renew()
{
    if (m_offByItself)
        setPairing(true);
    issueToken();
}

bool PairingSession::acceptsPairing()
{
    expireIfDue();
    return m_isPairing;
}

void PairingSession::expireIfDue()
{
    if (!m_isPairing)
        return;
    if (m_clock() < m_expiresAt && m_expiry.isActive())
        return;
    setPairing(false);
    m_offByItself = true;
    qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Pairing mode disabled: the code expired";
}

void PairingSession::recordFailedAttempt(const QString &address)
{
    if (!m_isPairing)
        return;
    if (!m_failedAddresses.contains(address))
        m_failedAddresses.append(address);
    if (++m_failedPerAddress[address] == maxFailedAttemptsPerAddress) {
        qCInfo(lcLog).nospace().noquote()
            << QStringLiteral("[QuivraMac] Someone at %1 is guessing the pairing code: ignoring "
                              "it until the next code")
                   .arg(logging::oneLine(address));
        addGuesser(address);
    }
    if (++m_failedAttempts < maxFailedAttempts)
        return;
    setPairing(false);
    m_offByItself = true;
    for (const QString &guesser : std::as_const(m_failedAddresses))
        addGuesser(guesser);
    qCInfo(lcLog).nospace().noquote()
        << QStringLiteral("[QuivraMac] Pairing mode disabled after %1 failed attempts")
               .arg(maxFailedAttempts);
    qCInfo(lcConsole).nospace().noquote()
        << QStringLiteral("Pairing mode disabled after %1 failed attempts from: %2")
               .arg(maxFailedAttempts)
               .arg(logging::oneLine(m_failedAddresses.join(QStringLiteral(", "))));
}

bool PairingSession::ignores(const QString &address) const
{
    return m_failedPerAddress.value(address) >= maxFailedAttemptsPerAddress;
}

void PairingSession::addGuesser(const QString &address)
{
    if (m_guessers.contains(address))
        return;
    m_guessers.append(address);
    Q_EMIT guessersChanged();
}

QString PairingSession::describeGuessers(const QStringList &addresses)
{
    if (addresses.isEmpty())
        return {};
    const qsizetype others = addresses.size() - 1;
    if (others == 0)
        return tr("Someone is guessing the code from %1").arg(addresses.constFirst());
    return tr("Someone is guessing the code from %1 and %n other address(es)", nullptr, int(others))
        .arg(addresses.constFirst());
}

// A code is good for one pairing, a few wrong guesses and a limited time.
void PairingSession::issueToken()
{
    m_token = generateToken();
    m_expiresAt = m_clock() + lifetime;
    m_failedAttempts = 0;
    m_failedAddresses.clear();
    m_failedPerAddress.clear();
    const bool hadGuessers = !m_guessers.isEmpty();
    m_guessers.clear();
    if (m_isPairing)
        m_expiry.start(lifetime);
    Q_EMIT tokenChanged();
    Q_EMIT expiresAtChanged();
    if (hadGuessers)
        Q_EMIT guessersChanged();
}

void PairingSession::setPairing(bool on)
{
    m_offByItself = false;
    if (on == m_isPairing)
        return;
    m_isPairing = on;
    if (!on)
        m_expiry.stop();
    Q_EMIT isPairingChanged();
}
