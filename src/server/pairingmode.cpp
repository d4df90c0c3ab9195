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
    setPairing(!m_isPairing);
    if (m_isPairing) {
        setLocalIP(m_env.localIP());
        setPairingToken(generatePairingToken());
        console::line(QStringLiteral("Pairing Mode Active. IP: %1, Token: %2")
                          .arg(m_localIP, m_pairingToken));
        log(QStringLiteral("[QuivraMac] Pairing mode enabled. Token: ") + m_pairingToken);
    } else {
        log(QStringLiteral("[QuivraMac] Pairing mode disabled"));
    }
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
