#include "pairing/phoneservice.h"

#include "platform/logging.h"

#include <QDateTime>

PhoneService::PhoneService(const ServerEnvironment &environment, ServerRunning serverRunning,
                           QObject *parent)
    : QObject(parent)
    , m_env(environment)
    , m_session(m_env.now)
    , m_keys(m_env.diagnostics.homeDirectory())
    , m_devices(m_env.supportDirectory(), m_env.diagnostics.homeDirectory())
    , m_listener(
          { &m_session, std::move(serverRunning), m_env.diagnostics, m_env.sshHost, m_env.sshPort })
    , m_retry(m_env.steadyNow, m_env.longestSleep)
{
    connect(&m_devices, &DeviceRegistry::devicesChanged, this,
            &PhoneService::lastPairedDeviceChanged);
    connect(&m_retry, &ClockTimer::timeout, this, &PhoneService::listen);
    connect(&m_addresses, &net::AddressWatcher::changed, this,
            [this] { setLocalIP(m_env.localIP()); });
    m_listener.onPairingRequest = [this](const PairingResult &result) {
        return completePairing(result);
    };
    setLocalIP(m_env.localIP());
    listen();
}

void PhoneService::listen()
{
    m_listener.start(m_env.pairingPort, m_env.advertise);
    QString problem;
    if (m_listener.isListening()) {
        qCInfo(lcLog).nospace().noquote()
            << "[QuivraMac] Bonjour listener started (iOS can discover)";
    } else {
        const bool portTaken = m_listener.serverError() == QAbstractSocket::AddressInUseError;
        const char *reason = portTaken ? QT_TR_NOOP("Port %1 is in use, so phones cannot pair")
                                       : QT_TR_NOOP("Phones cannot pair: %1");
        const QString detail =
            portTaken ? QString::number(m_listener.port()) : m_listener.errorString();
        // Shown in the user's language, logged in English.
        problem = tr(reason).arg(detail);
        if (problem != m_problem)
            qCInfo(lcLog).nospace().noquote()
                << QStringLiteral("[QuivraMac] %1; trying again every %2 s")
                       .arg(QString::fromUtf8(reason).arg(detail))
                       .arg(retryInterval.count());
        m_retry.start(retryInterval);
    }
    if (problem == m_problem)
        return;
    m_problem = problem;
    Q_EMIT problemChanged();
}

QString PhoneService::lastPairedDevice() const
{
    const QList<PairedDevice> list = m_devices.devices();
    return list.isEmpty() ? QString() : list.constFirst().name;
}

void PhoneService::togglePairingMode()
{
    if (m_session.isPairing()) {
        m_session.switchOff();
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Pairing mode disabled";
        return;
    }
    m_session.switchOn([this] { setLocalIP(m_env.localIP()); });
    qCInfo(lcConsole).nospace().noquote()
        << QStringLiteral("Pairing Mode Active. IP: %1, Token: %2")
               .arg(m_localIP, m_session.token());
    qCInfo(lcLog).nospace().noquote()
        << "[QuivraMac] Pairing mode enabled. Token: " << m_session.token();
}

bool PhoneService::completePairing(const PairingResult &result)
{
    if (!m_keys.install(result.publicKey))
        return false;
    qCInfo(lcLog).nospace().noquote()
        << "[QuivraMac] Paired with " << logging::oneLine(result.deviceName);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    // The listener only passes keys that parse, so there is always an entry to record.
    const PairedDevice device =
        DeviceRegistry::entryFor(result.deviceName, result.publicKey, result.address, now)
            .value_or(PairedDevice { result.deviceName, {}, {}, {}, now, result.address });
    if (const auto error = m_devices.record(device))
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Paired device not listed: " << *error;
    Q_EMIT paired(device);
    // After the event, so that whoever waits for a pairing hears of it before of the switch-off;
    // in this same step, so that requests queued behind this one find pairing mode off.
    m_session.switchOff();
    return true;
}

void PhoneService::setLocalIP(const QString &address)
{
    if (address == m_localIP)
        return;
    m_localIP = address;
    Q_EMIT localIPChanged();
}
