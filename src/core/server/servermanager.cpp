#include "server/servermanager.h"

#include "platform/userdefaults.h"

#include <QCoreApplication>

ServerManager::ServerManager(ServerEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_env(std::move(environment))
    // Before the parts are built, so that their first lines already land in this log.
    , m_previousAppLog(logging::setAppLog(
          [this](logging::Entry kind, const QString &text) { appendToLog(kind, text); }))
    , m_server(m_env)
    , m_phones(m_env, [server = QPointer(&m_server)]() -> std::optional<bool> {
        if (!server)
            return std::nullopt;
        return server->isRunning();
    })
{
    connect(&m_server, &ServerSupervisor::runningChanged, this, &ServerManager::isRunningChanged);
    connect(&m_server, &ServerSupervisor::uptimeChanged, this, &ServerManager::uptimeChanged);
    connect(&m_server, &ServerSupervisor::failureChanged, this,
            &ServerManager::updateFailureReason);
    // Pairing mode ends with the server; the listener stays for the phone's status report.
    connect(&m_server, &ServerSupervisor::wentDown, this,
            [this] { m_phones.session().switchOff(); });
    PairingSession &session = m_phones.session();
    connect(&session, &PairingSession::isPairingChanged, this, &ServerManager::isPairingChanged);
    connect(&session, &PairingSession::tokenChanged, this, &ServerManager::pairingTokenChanged);
    connect(&session, &PairingSession::expiresAtChanged, this,
            &ServerManager::pairingExpiresAtChanged);
    connect(&session, &PairingSession::guessersChanged, this,
            &ServerManager::pairingGuessersChanged);
    connect(&m_phones, &PhoneService::localIPChanged, this, &ServerManager::localIPChanged);
    connect(&m_phones, &PhoneService::lastPairedDeviceChanged, this,
            &ServerManager::lastPairedDeviceChanged);
    connect(&m_phones, &PhoneService::problemChanged, this, &ServerManager::updateFailureReason);
    updateFailureReason();

    userdefaults::registerDefaults({ { QStringLiteral("autoStartServer"), true } });
    m_server.cleanupOrphans();
    if (auto *app = QCoreApplication::instance())
        connect(app, &QCoreApplication::aboutToQuit, &m_server, &ServerSupervisor::stopForQuit);
    if (userdefaults::boolValue(QStringLiteral("autoStartServer")))
        m_server.start();
}

ServerManager::~ServerManager()
{
    logging::setAppLog(std::move(m_previousAppLog));
}

void ServerManager::appendToLog(logging::Entry kind, const QString &text)
{
    if (kind == logging::Entry::ServerOutput)
        m_log.appendOutput(text);
    else
        m_log.appendMessage(text);
    Q_EMIT logsChanged();
}

void ServerManager::setLogs(const QString &logs)
{
    if (logs == m_log.text())
        return;
    m_log.assign(logs);
    Q_EMIT logsChanged();
}

void ServerManager::updateFailureReason()
{
    QString reason = m_server.failureReason(true);
    if (reason.isEmpty())
        reason = m_phones.problem();
    if (reason == m_failureReason)
        return;
    m_failureReason = reason;
    Q_EMIT failureReasonChanged();
}
