#pragma once

#include "diagnostics/checks.h"
#include "diagnostics/statusresponse.h"

#include <QObject>

#include <memory>

class SshProbe;

// Runs the six readiness checks and condenses them into the phone's status report. One engine
// per status request; everything runs on the main thread, only the SSH probe waits.
class DiagnosticEngine : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<DiagnosticCheck> checks READ checks NOTIFY checksChanged)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY isRunningChanged)

public:
    // Without a probe the engine makes its own, to 127.0.0.1:22.
    explicit DiagnosticEngine(ServerRunning serverRunning, std::shared_ptr<SshProbe> probe = {},
                              DiagnosticSystem system = DiagnosticSystem::real(),
                              QObject *parent = nullptr);
    ~DiagnosticEngine() override;

    QList<DiagnosticCheck> checks() const { return m_checks; }
    bool isRunning() const { return m_isRunning; }

    // Verdicts are stored in the order they complete; finished() follows the last, possibly
    // before this returns.
    void runAllChecks();
    void runCheck(const QString &id);
    bool allCriticalPassed() const { return allCriticalPassed(m_checks); }
    static bool allCriticalPassed(const QList<DiagnosticCheck> &checks);
    // The report of the last run, with the addresses that run saw.
    StatusResponse makeStatusResponse(int pairingPort) const;

Q_SIGNALS:
    void checksChanged();
    void isRunningChanged();
    void finished();

private:
    // Calls store(verdict) once, at once or (for the SSH probe) later; with atOnce, the SSH
    // probe's verdict too while it is reused.
    void runProbe(const QString &id, const std::function<void(const DiagnosticStatus &)> &store,
                  bool atOnce = false);
    void setStatus(const QString &id, const DiagnosticStatus &status);

    QList<DiagnosticCheck> m_checks;
    bool m_isRunning = false;
    int m_pending = 0;
    ServerRunning m_serverRunning;
    std::shared_ptr<SshProbe> m_probe;
    DiagnosticSystem m_system;
    // The machine's addresses as the last run of all checks saw them: the network checks and
    // the report share one look, which is the costly part of a report.
    QList<net::InterfaceAddress> m_interfaces;
};
