#include "platform/console.h"
#include "server/servermanager.h"

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
