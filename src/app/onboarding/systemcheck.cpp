#include "onboarding/systemcheck.h"

#include "diagnostics/checks.h"
#include "diagnostics/sshprobe.h"
#include "diagnostics/sshrepair.h"
#include "net/localaddress.h"
#include "onboarding/prompts.h"
#include "platform/wording.h"
#include "server/servermanager.h"

SystemCheck::SystemCheck(ServerManager *serverManager, Scheduler scheduler, QString sshHost,
                         quint16 sshPort, QObject *parent)
    : QObject(parent)
    , m_serverManager(serverManager)
    , m_system(serverManager ? serverManager->environment().diagnostics : DiagnosticSystem::real())
    , m_schedule(std::move(scheduler))
    , m_sshHost(std::move(sshHost))
    , m_sshPort(sshPort)
{ }

QVariantList SystemCheck::checksForView() const
{
    QVariantList list;
    for (const Item &item : m_items) {
        list.append(QVariantMap { { QStringLiteral("name"), item.name },
                                  { QStringLiteral("successMessage"), item.successMessage },
                                  { QStringLiteral("state"), int(item.state) } });
    }
    return list;
}

QString SystemCheck::failedMessage() const
{
    return m_failed >= 0 ? m_items.at(m_failed).message : QString();
}

QString SystemCheck::failedPrompt() const
{
    return m_failed >= 0 ? m_items.at(m_failed).prompt : QString();
}

QString SystemCheck::failedCommand() const
{
    return m_failed >= 0 ? m_items.at(m_failed).command : QString();
}

bool SystemCheck::failedCanFix() const
{
    return m_failed >= 0 && m_items.at(m_failed).canFix;
}

void SystemCheck::fix()
{
    if (!failedCanFix())
        return;
    // Only the SSH keys' folder is mended here; the others need the user or the system.
    if (const auto error = sshrepair::repair(m_system.homeDirectory())) {
        Item &item = m_items[m_failed];
        item.message = *error;
        item.canFix = false;
        Q_EMIT checksChanged();
        return;
    }
    start();
}

QString SystemCheck::title() const
{
    if (m_allPassed)
        return tr("Looking good!");
    return m_failed >= 0 ? tr("Almost there...") : wording::checkingMachine();
}

void SystemCheck::appear()
{
    const int port = m_serverManager ? m_serverManager->port() : 2022;
    const QString address = net::chooseLocalIP(m_system.interfaces());
    m_items = {
        { QStringLiteral("ssh_daemon"), wording::shown(wording::sshCheckName()),
          wording::acceptsSecureConnections() },
        { QStringLiteral("ssh_dir"), tr("SSH Keys"), tr("Ready to authenticate") },
        { QStringLiteral("etserver"), tr("Quivra Server"), tr("Running on port %1").arg(port) },
        { QStringLiteral("network"), tr("Network"), tr("Connected at %1").arg(address) },
    };
    start();
}

void SystemCheck::start()
{
    ++m_run;
    m_failed = -1;
    m_current = 0;
    if (m_allPassed) {
        m_allPassed = false;
        Q_EMIT allPassedChanged();
    }
    for (Item &item : m_items) {
        item.state = Pending;
        item.message.clear();
        item.prompt.clear();
        item.command.clear();
        item.canFix = false;
    }
    Q_EMIT checksChanged();
    Q_EMIT titleChanged();
    runNext();
}

void SystemCheck::runNext()
{
    const quint64 run = m_run;
    if (m_current >= m_items.size()) {
        m_schedule(this, celebrationDelay, [this, run] {
            if (run != m_run)
                return;
            m_allPassed = true;
            Q_EMIT allPassedChanged();
            Q_EMIT titleChanged();
        });
        return;
    }
    m_items[m_current].state = Checking;
    Q_EMIT checksChanged();
    const QString id = m_items.at(m_current).id;
    m_schedule(this, beforeEachCheck, [this, run, id] {
        if (run == m_run)
            runCheck(id, [this, run](const Item &result) { store(run, result); });
    });
}

void SystemCheck::store(quint64 run, const Item &result)
{
    if (run != m_run || m_current >= m_items.size())
        return;
    Item &item = m_items[m_current];
    item.state = result.state;
    item.message = result.message;
    item.prompt = result.prompt;
    item.command = result.command;
    item.canFix = result.canFix;
    if (item.state == Passed) {
        ++m_current;
        Q_EMIT checksChanged();
        m_schedule(this, checkDelay, [this, run] {
            if (run == m_run)
                runNext();
        });
    } else if (item.state == Failed) {
        m_failed = m_current;
        Q_EMIT checksChanged();
        Q_EMIT titleChanged();
    }
}

void SystemCheck::runCheck(const QString &id, std::function<void(Item)> done)
{
    if (id == QLatin1String("ssh_daemon"))
        checkSsh(std::move(done));
    else if (id == QLatin1String("ssh_dir"))
        done(checkSshDirectory());
    else if (id == QLatin1String("etserver"))
        checkServer(std::move(done));
    else if (id == QLatin1String("network"))
        done(checkNetwork());
    else
        done({ {}, {}, {}, Passed });
}

namespace {
SystemCheck::Item failed(const QString &message, const QString &prompt, const QString &command = {})
{
    return { {}, {}, {}, SystemCheck::Failed, message, prompt, command };
}
SystemCheck::Item fixable(const QString &message, const QString &prompt)
{
    return { {}, {}, {}, SystemCheck::Failed, message, prompt, {}, true };
}
const SystemCheck::Item passed { {}, {}, {}, SystemCheck::Passed };
} // namespace

void SystemCheck::checkSsh(std::function<void(Item)> done)
{
    // A probe of its own: "Try Again" after enabling the daemon must not get an old answer.
    auto *probe = new SshProbe(m_sshHost, m_sshPort, this);
    probe->probe(this, [this, probe, done = std::move(done)](bool accepting) {
        probe->deleteLater();
        if (accepting)
            return done(passed);
        const wording::SshAdvice advice = wording::sshSetupAdvice(m_system.sshServer());
        done(failed(advice.message, prompts::remoteLogin(), advice.command));
    });
}

// The status report's own checks, worded for the setup window.
SystemCheck::Item SystemCheck::checkSshDirectory() const
{
    const checks::SshDirectoryState state = checks::inspectSshDirectory(m_system.homeDirectory());
    switch (state.kind) {
    case checks::SshDirectoryState::Missing:
        return fixable(tr("~/.ssh directory doesn't exist"), prompts::missingSshDirectory());
    case checks::SshDirectoryState::WrongMode:
        return fixable(tr("~/.ssh has wrong permissions"),
                       prompts::wrongPermissions(QString::number(state.mode, 8)));
    case checks::SshDirectoryState::Unreadable: // unreadable permissions count as correct
    case checks::SshDirectoryState::Fine:
        break;
    }
    // sshd ignores a key file others can change; 0600 is what pairing gives it.
    if (const auto mode = checks::authorizedKeysWrongMode(m_system.homeDirectory()))
        return fixable(tr("authorized_keys has wrong permissions"),
                       prompts::wrongKeyPermissions(QString::number(*mode, 8)));
    return passed;
}

void SystemCheck::checkServer(std::function<void(Item)> done)
{
    const auto verdict = [this](const std::function<void(Item)> &report) {
        if (!m_serverManager)
            return report(failed(tr("Server couldn't start"), prompts::serverCrash(-1, {})));
        if (m_serverManager->isRunning())
            return report(passed);
        const ServerFailure failure = m_serverManager->supervisor().failure();
        const int port = m_serverManager->port();
        if (failure.kind == ServerFailure::NotInstalled)
            return report(
                failed(tr("Eternal Terminal is not installed"), prompts::etserverMissing()));
        if (failure.kind == ServerFailure::PortInUse)
            return report(failed(tr("Port %1 is in use").arg(port), prompts::portInUse(port)));
        report(failed(tr("Server couldn't start"),
                      prompts::serverCrash(failure.exitCode, m_serverManager->logs())));
    };
    if (m_serverManager && !m_serverManager->isRunning()) {
        m_serverManager->startServer();
        m_schedule(this, afterStartingServer, [verdict, done] { verdict(done); });
        return;
    }
    verdict(done);
}

SystemCheck::Item SystemCheck::checkNetwork() const
{
    if (checks::network(m_system.interfaces()).kind != DiagnosticStatus::Passed)
        return failed(tr("No network connection"), prompts::noNetwork());
    return passed;
}
