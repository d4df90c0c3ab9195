// The pairing side of ServerManager: the user's switch and the listener's lifetime.
#include "platform/logging.h"
#include "server/servermanager.h"

#include <QDateTime>

void ServerManager::togglePairingMode()
{
    if (m_pairing.isPairing()) {
        m_pairing.switchOff();
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Pairing mode disabled";
        return;
    }
    m_pairing.switchOn([this] { setLocalIP(m_env.localIP()); });
    qCInfo(lcConsole).nospace().noquote()
        << QStringLiteral("Pairing Mode Active. IP: %1, Token: %2")
               .arg(m_localIP, m_pairing.token());
    qCInfo(lcLog).nospace().noquote()
        << "[QuivraMac] Pairing mode enabled. Token: " << m_pairing.token();
}

void ServerManager::startPairingListener()
{
    PairingListener::Setup setup { &m_pairing,
                                   [manager = QPointer(this)]() -> std::optional<bool> {
                                       if (!manager)
                                           return std::nullopt;
                                       return manager->isRunning();
                                   },
                                   m_env.diagnostics, m_env.sshHost, m_env.sshPort };
    m_pairingListener.reset(new PairingListener(std::move(setup)));
    m_pairingListener->onKeyReceived = [this](const QString &key) {
        if (!installAuthorizedKey(key))
            return false;
        // The advertisement ends with the listener, until the server is started again.
        stopPairingListener();
        return true;
    };
    m_pairingListener->onPairingSuccess = [this](const PairingResult &result) {
        setLastPairedDevice(result.deviceName);
        m_pairing.switchOff();
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Paired with " << result.deviceName;
        if (const auto error = m_devices.record(result.deviceName, result.publicKey, result.address,
                                                QDateTime::currentDateTimeUtc()))
            qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Paired device not listed: " << *error;
    };
    m_pairingListener->start(m_env.pairingPort, m_env.advertise);
    qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Bonjour listener started (iOS can discover)";
    if (!m_pairingListener->isListening())
        onPairingListenerFailed();
}

void ServerManager::stopPairingListener()
{
    m_listenerRetry.stop();
    if (!m_listenerProblem.isEmpty()) {
        m_listenerProblem.clear();
        updateFailureReason();
    }
    if (m_pairingListener) {
        m_pairingListener->stop();
        m_pairingListener.reset();
    }
    m_pairing.switchOff();
}

bool ServerManager::installAuthorizedKey(const QString &publicKey)
{
    if (!m_keys.install(publicKey))
        return false;
    m_pairing.switchOff();
    return true;
}
