#include "platform/console.h"
#include "server/authorizedkeys.h"
#include "server/servermanager.h"

#include <QDir>
#include <QRandomGenerator>

QString ServerManager::generatePairingToken()
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

void ServerManager::togglePairingMode()
{
    if (!m_isPairing) {
        setLocalIP(m_env.localIP());
        issuePairingToken();
    }
    setPairing(!m_isPairing);
    if (m_isPairing) {
        console::line(QStringLiteral("Pairing Mode Active. IP: %1, Token: %2")
                          .arg(m_localIP, m_pairingToken));
        log(QStringLiteral("[QuivraMac] Pairing mode enabled. Token: ") + m_pairingToken);
    } else {
        log(QStringLiteral("[QuivraMac] Pairing mode disabled"));
    }
}

void ServerManager::renewPairingToken()
{
    issuePairingToken();
}

// A code is good for one pairing, a few wrong guesses and a limited time.
void ServerManager::issuePairingToken()
{
    setPairingToken(generatePairingToken());
    m_pairingIssuedAt = m_env.now();
    m_failedPairingAttempts = 0;
    m_failedPairingAddresses.clear();
    m_pairingExpiry.start(pairingCodeLifetime);
}

bool ServerManager::acceptsPairing()
{
    if (m_isPairing && m_env.now() - m_pairingIssuedAt >= pairingCodeLifetime) {
        setPairing(false);
        log(QStringLiteral("[QuivraMac] Pairing mode disabled: the code expired"));
    }
    return m_isPairing;
}

void ServerManager::recordFailedPairingAttempt(const QString &address)
{
    if (!m_isPairing)
        return;
    if (!m_failedPairingAddresses.contains(address))
        m_failedPairingAddresses.append(address);
    if (++m_failedPairingAttempts < maxFailedPairingAttempts)
        return;
    setPairing(false);
    log(QStringLiteral("[QuivraMac] Pairing mode disabled after %1 failed attempts")
            .arg(maxFailedPairingAttempts));
    console::line(QStringLiteral("Pairing mode disabled after %1 failed attempts from: %2")
                      .arg(maxFailedPairingAttempts)
                      .arg(m_failedPairingAddresses.join(QStringLiteral(", "))));
}

void ServerManager::startPairingListener()
{
    m_pairingListener.reset(new PairingListener(this));
    m_pairingListener->onKeyReceived = [this](const QString &key) {
        return installAuthorizedKey(key);
    };
    m_pairingListener->onPairingSuccess = [this](const PairingResult &result) {
        setLastPairedDevice(result.deviceName);
        setPairing(false);
        log(QStringLiteral("[QuivraMac] Paired with ") + result.deviceName);
    };
    m_pairingListener->start(m_env.pairingPort, m_env.advertise);
    log(QStringLiteral("[QuivraMac] Bonjour listener started (iOS can discover)"));
}

void ServerManager::stopPairingListener()
{
    if (m_pairingListener) {
        m_pairingListener->stop();
        m_pairingListener.reset();
    }
    setPairing(false);
}

bool ServerManager::installAuthorizedKey(const QString &publicKey)
{
    if (const auto error =
            authorizedkeys::install(QDir::homePath(), publicKey, QDate::currentDate())) {
        console::line(QStringLiteral("Failed to save key: ") + *error);
        log(QStringLiteral("[QuivraMac] Pairing failed: ") + *error);
        return false;
    }
    console::line(QStringLiteral("Successfully added key to authorized_keys"));
    log(QStringLiteral("[QuivraMac] Pairing successful - key added"));
    // The advertisement ends with the listener, until the server is started again.
    stopPairingListener();
    return true;
}
