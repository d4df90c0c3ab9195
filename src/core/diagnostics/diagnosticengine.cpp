#include "diagnostics/diagnosticengine.h"

#include "diagnostics/sshprobe.h"
#include "platform/wording.h"

DiagnosticEngine::DiagnosticEngine(ServerRunning serverRunning, std::shared_ptr<SshProbe> probe,
                                   DiagnosticSystem system, QObject *parent)
    : QObject(parent)
    , m_checks(checks::fixedList())
    , m_serverRunning(std::move(serverRunning))
    , m_probe(probe ? std::move(probe) : std::make_shared<SshProbe>())
    , m_system(std::move(system))
{ }

DiagnosticEngine::~DiagnosticEngine() = default;

void DiagnosticEngine::runAllChecks()
{
    m_isRunning = true;
    Q_EMIT isRunningChanged();
    m_interfaces = m_system.interfaces();
    for (DiagnosticCheck &check : m_checks)
        check.status.kind = DiagnosticStatus::Checking;
    Q_EMIT checksChanged();
    const QList<DiagnosticCheck> started = m_checks;
    m_pending = int(started.size());
    for (const DiagnosticCheck &check : started) {
        runProbe(
            check.id,
            [this, id = check.id](const DiagnosticStatus &verdict) {
                setStatus(id, verdict);
                if (--m_pending == 0) {
                    m_isRunning = false;
                    Q_EMIT isRunningChanged();
                    Q_EMIT finished();
                }
            },
            true);
    }
}

void DiagnosticEngine::runCheck(const QString &id)
{
    const auto found = std::find_if(m_checks.cbegin(), m_checks.cend(),
                                    [&](const DiagnosticCheck &check) { return check.id == id; });
    if (found == m_checks.cend())
        return;
    setStatus(id, { DiagnosticStatus::Checking, {} });
    m_interfaces = m_system.interfaces();
    runProbe(id, [this, id](const DiagnosticStatus &verdict) { setStatus(id, verdict); });
}

void DiagnosticEngine::runProbe(const QString &id,
                                const std::function<void(const DiagnosticStatus &)> &store,
                                bool atOnce)
{
    if (id == QLatin1String("ssh_daemon")) {
        const auto verdict = [this, store](bool accepting) {
            store(accepting
                      ? DiagnosticStatus::passed()
                      : DiagnosticStatus::failed(wording::sshNotRunning(m_system.sshServer())));
        };
        // A report takes a verdict still reused at once, which saves it a turn of the loop; a
        // single check shows itself checking first.
        if (const std::optional<bool> accepting = m_probe->reusableVerdict(); accepting && atOnce)
            verdict(*accepting);
        else
            m_probe->probe(this, verdict);
    } else if (id == QLatin1String("ssh_dir")) {
        store(checks::sshDirectory(m_system.homeDirectory()));
    } else if (id == QLatin1String("auth_keys")) {
        store(checks::authorizedKeys(m_system.homeDirectory()));
    } else if (id == QLatin1String("etserver")) {
        store(checks::server(m_serverRunning ? m_serverRunning() : std::nullopt));
    } else if (id == QLatin1String("network")) {
        store(checks::network(m_interfaces));
    } else if (id == QLatin1String("tailscale")) {
        store(checks::tailscale(m_interfaces, m_system.tailscaleInstalled()));
    }
}

void DiagnosticEngine::setStatus(const QString &id, const DiagnosticStatus &status)
{
    for (DiagnosticCheck &check : m_checks) {
        if (check.id == id) {
            check.status = status;
            Q_EMIT checksChanged();
            return;
        }
    }
}

bool DiagnosticEngine::allCriticalPassed(const QList<DiagnosticCheck> &checks)
{
    return std::all_of(checks.cbegin(), checks.cend(), [](const DiagnosticCheck &check) {
        return !check.isCritical || check.status.kind == DiagnosticStatus::Passed;
    });
}

StatusResponse DiagnosticEngine::makeStatusResponse(int pairingPort) const
{
    StatusResponse response;
    response.ready = allCriticalPassed();
    for (const DiagnosticCheck &check : m_checks) {
        const bool problem = check.status.isProblem();
        response.diagnostics.append({ check.id, check.name,
                                      check.status.kind == DiagnosticStatus::Passed,
                                      problem ? std::optional(check.status.message) : std::nullopt,
                                      problem && check.canAutoFix });
    }
    const QList<net::InterfaceAddress> &addresses = m_interfaces;
    response.hostname = m_system.hostLabel();
    response.username = m_system.userName();
    response.ip = net::chooseLocalIP(addresses);
    response.tailscaleIP = net::tailscaleAddress(addresses);
    response.pairingPort = pairingPort;
    return response;
}
