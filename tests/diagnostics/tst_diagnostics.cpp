#include "diagnostics/diagnosticengine.h"
#include "diagnostics/sshprobe.h"
#include "platform/wording.h"
#include "testsupport.h"

#include <QDir>
#include <QTcpServer>

namespace {

QString home()
{
    return QDir::homePath();
}

void makeSsh(QFile::Permissions directory, std::optional<QFile::Permissions> keys)
{
    QDir(home() + "/.ssh").removeRecursively();
    QFile::remove(home() + "/.ssh");
    QDir().mkpath(home() + "/.ssh");
    if (keys) {
        QFile file(home() + "/.ssh/authorized_keys");
        file.open(QIODevice::WriteOnly);
        file.setPermissions(*keys);
    }
    QFile::setPermissions(home() + "/.ssh", directory);
}

constexpr auto rwx = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
constexpr auto rw = QFile::ReadOwner | QFile::WriteOwner;

DiagnosticSystem machine(QList<net::InterfaceAddress> interfaces, bool tailscaleInstalled = false)
{
    return { home, [interfaces] { return interfaces; },
             [tailscaleInstalled] { return tailscaleInstalled; },
             [] { return QStringLiteral("tester"); }, [] { return QStringLiteral("studio"); } };
}

} // namespace

class TestDiagnostics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileChecksReportExactMessages()
    {
        using checks::authorizedKeys;
        using checks::sshDirectory;
        QDir(home() + "/.ssh").removeRecursively();
        QCOMPARE(sshDirectory(home()).message, "~/.ssh directory doesn't exist");
        QCOMPARE(authorizedKeys(home()).message, "~/.ssh directory doesn't exist");

        makeSsh(rwx | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther,
                rw | QFile::ReadGroup | QFile::ReadOther);
        QCOMPARE(
            sshDirectory(home()),
            DiagnosticStatus::fixable("~/.ssh has incorrect permissions (755 instead of 700)"));
        QCOMPARE(authorizedKeys(home()),
                 DiagnosticStatus::fixable(
                     "authorized_keys has incorrect permissions (644 instead of 600)"));
        makeSsh(QFile::ReadOwner | QFile::ExeOwner, QFile::ReadOwner);
        QCOMPARE(sshDirectory(home()).message,
                 "~/.ssh has incorrect permissions (500 instead of 700)");
        QCOMPARE(authorizedKeys(home()).message,
                 "authorized_keys has incorrect permissions (400 instead of 600)");

        makeSsh(rwx, std::nullopt);
        QCOMPARE(sshDirectory(home()), DiagnosticStatus::passed());
        QCOMPARE(authorizedKeys(home()).message, "authorized_keys file doesn't exist");
        makeSsh(rwx, rw);
        QCOMPARE(authorizedKeys(home()), DiagnosticStatus::passed());

        // A regular file where the directory should be: the key check goes on to the file path.
        QDir(home() + "/.ssh").removeRecursively();
        QFile file(home() + "/.ssh");
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(sshDirectory(home()).message, "~/.ssh directory doesn't exist");
        QCOMPARE(authorizedKeys(home()).message, "authorized_keys file doesn't exist");
        QFile::remove(home() + "/.ssh");
    }

    void addressChecks()
    {
        const net::InterfaceAddress lan { "en0", true, "192.168.1.5" };
        const net::InterfaceAddress tailnet { "utun3", true, "100.101.102.103" };
        QCOMPARE(checks::network({ { "lo", true, "127.0.0.1" } }).message,
                 "No network connection detected");
        QCOMPARE(checks::network({ lan }), DiagnosticStatus::passed());
        QCOMPARE(checks::tailscale({ lan }, false).message,
                 "Install Tailscale to connect from anywhere");
        QCOMPARE(checks::tailscale({ lan }, true).message,
                 "Tailscale is installed but not connected");
        QCOMPARE(checks::tailscale({ lan, tailnet }, false), DiagnosticStatus::passed());
        QCOMPARE(checks::server(std::nullopt).message, "Server manager not available");
    }

    void sshProbeGivesOneVerdictQuickly()
    {
        QTcpServer sshd;
        QVERIFY(sshd.listen(QHostAddress::LocalHost));
        SshProbe open("127.0.0.1", sshd.serverPort());
        QList<bool> verdicts;
        open.probe(this, [&](bool accepting) { verdicts.append(accepting); });
        open.probe(this, [&](bool accepting) { verdicts.append(accepting); });
        QTRY_COMPARE(verdicts, (QList<bool> { true, true }));
        QVERIFY(sshd.nextPendingConnection());
        QVERIFY(!sshd.hasPendingConnections()); // both waited on one connection
        // Within the reuse period the verdict is remembered: a daemon that has just gone away
        // is still reported as accepting rather than probed again.
        sshd.close();
        open.probe(this, [&](bool accepting) { verdicts.append(accepting); });
        QTRY_COMPARE(verdicts, (QList<bool> { true, true, true }));
        verdicts.clear();

        // With a time-out that never comes, only the refusal itself can give the verdict.
        QTcpSocket holder;
        SshProbe closed("127.0.0.1", testsupport::refusingTcpPort(holder));
        closed.setTimeout(std::chrono::hours(1));
        closed.probe(this, [&](bool accepting) { verdicts.append(accepting); });
        QTRY_COMPARE(verdicts, QList<bool> { false });
    }

#ifndef Q_OS_MACOS
    // The SSH server's and Eternal Terminal's install steps follow the system's family; an
    // installed server that does not answer is started, by its service's name.
    void installStepsFollowOsRelease_data()
    {
        QTest::addColumn<QString>("osRelease");
        QTest::addColumn<QString>("ssh");
        QTest::addColumn<QString>("et");
        const QString apt = "sudo apt install openssh-server";
        QTest::newRow("debian")
            << "PRETTY_NAME=\"Debian GNU/Linux 12 "
               "(bookworm)\"\nID=debian\nVERSION_CODENAME=bookworm\n"
            << apt
            << "sudo mkdir -m 0755 -p /etc/apt/keyrings\ncurl -sSL "
               "https://github.com/MisterTea/debian-et/raw/master/et.gpg | sudo tee "
               "/etc/apt/keyrings/et.gpg >/dev/null\necho \"deb "
               "[signed-by=/etc/apt/keyrings/et.gpg] "
               "https://mistertea.github.io/debian-et/debian-source/ bookworm main\" | sudo tee "
               "/etc/apt/sources.list.d/et.list\nsudo apt update && sudo apt install et";
        QTest::newRow("ubuntu")
            << "ID=ubuntu\nID_LIKE=debian\n"
            << apt << "sudo add-apt-repository ppa:jgmath2000/et && sudo apt install et";
        QTest::newRow("mint, quoted") << "ID=linuxmint\nID_LIKE=\"ubuntu debian\"\n"
                                      << apt
                                      << "sudo add-apt-repository ppa:jgmath2000/et && sudo apt "
                                         "install et";
        QTest::newRow("fedora")
            << "NAME=\"Fedora Linux\"\nID=fedora\n"
            << "sudo dnf install openssh-server && sudo systemctl enable --now sshd"
            << "sudo dnf install et";
        QTest::newRow("manjaro") << "ID=manjaro\nID_LIKE=arch\n"
                                 << "sudo pacman -S openssh && sudo systemctl enable --now sshd"
                                 << "yay -S eternalterminal";
        QTest::newRow("alpine") << "ID=alpine\n"
                                << ""
                                << "";
        QTest::newRow("unreadable") << ""
                                    << ""
                                    << "";
        QTest::newRow("look-alike keys") << "ID_LIKE_NOT=debian\nXID=fedora\n"
                                         << ""
                                         << "";
    }
    void installStepsFollowOsRelease()
    {
        QFETCH(QString, osRelease);
        QFETCH(QString, ssh);
        QFETCH(QString, et);
        const wording::SshAdvice missing = wording::sshAdviceOn(osRelease, { false, {} });
        QCOMPARE(missing.command, ssh);
        QCOMPARE(missing.message,
                 ssh.isEmpty() ? "SSH server is not installed. Install and start OpenSSH's sshd."
                               : "SSH server is not installed. Install it with:");
        QCOMPARE(wording::etserverInstallCommandOn(osRelease), et);

        const wording::SshAdvice stopped = wording::sshAdviceOn(osRelease, { true, "ssh" });
        QCOMPARE(stopped.message, "SSH server is installed but not running. Start it with:");
        QCOMPARE(stopped.command, "sudo systemctl enable --now ssh");
        QVERIFY(wording::sshAdviceOn(osRelease, { true, {} }).command.isEmpty());
    }
#endif

    void engineReportsReadinessWithoutTailscale()
    {
        makeSsh(rwx, rw);
        QTcpServer sshd;
        QVERIFY(sshd.listen(QHostAddress::LocalHost));
        auto probe = std::make_shared<SshProbe>("127.0.0.1", sshd.serverPort());
        // No ServerManager: the one critical check that cannot pass.
        DiagnosticEngine engine(nullptr, probe, machine({ { "eth0", true, "10.0.0.7" } }));
        QSignalSpy finished(&engine, &DiagnosticEngine::finished);
        QSignalSpy running(&engine, &DiagnosticEngine::isRunningChanged);
        engine.runAllChecks();
        QVERIFY(engine.isRunning());
        QVERIFY(finished.wait());
        QCOMPARE(running.size(), 2);
        QVERIFY(!engine.allCriticalPassed());
        StatusResponse report = engine.makeStatusResponse(8080);
        QCOMPARE(report.diagnostics.at(3),
                 (DiagnosticInfo { "etserver", "Quivra Server", false,
                                   QStringLiteral("Server manager not available"), true }));
        QCOMPARE(report.diagnostics.at(0),
                 (DiagnosticInfo { "ssh_daemon", "SSH Server", true, std::nullopt, false }));
        QCOMPARE(report.ip, "10.0.0.7");
        QVERIFY(!report.tailscaleIP);

        // Tailscale is not critical: everything else passing is ready.
        QList<DiagnosticCheck> passing = engine.checks();
        for (DiagnosticCheck &check : passing)
            check.status = check.id == "tailscale" ? DiagnosticStatus::failed("x")
                                                   : DiagnosticStatus::passed();
        QVERIFY(DiagnosticEngine::allCriticalPassed(passing));
        passing[1].status = DiagnosticStatus::fixable("x");
        QVERIFY(!DiagnosticEngine::allCriticalPassed(passing));

        DiagnosticEngine other(nullptr, probe, machine({}));
        other.runCheck("nonexistent");
        QCOMPARE(other.checks().at(0).status.kind, DiagnosticStatus::Pending);
        other.runCheck("ssh_daemon");
        QCOMPARE(other.checks().at(0).status.kind, DiagnosticStatus::Checking);
        QTRY_COMPARE(other.checks().at(0).status, DiagnosticStatus::passed());
    }
};

QUIVRA_TEST_MAIN(TestDiagnostics)
#include "tst_diagnostics.moc"
