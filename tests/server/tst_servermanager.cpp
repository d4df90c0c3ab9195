#include "platform/userdefaults.h"
#include "server/servermanager.h"
#include "testsupport.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSettings>
#include <QTimer>

using testsupport::GuardedProcessTable;

namespace {

QStringList logLines(const ServerManager &manager)
{
    return manager.logs().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

const char *fakeSettings[] = { "FAKE_ETSERVER_OUTPUT", "FAKE_ETSERVER_IGNORE_TERM",
                               "FAKE_ETSERVER_EXIT_CODE", "FAKE_ETSERVER_BURST_BYTES",
                               "FAKE_ETSERVER_WRITE_PIDFILE" };

} // namespace

class TestServerManager : public QObject
{
    Q_OBJECT

    std::shared_ptr<GuardedProcessTable> m_processes;
    std::unique_ptr<ServerManager> m_manager;

    // Once the clean-up of earlier servers is over, with the listener's start-up lines cleared.
    ServerManager &makeManager(ServerEnvironment env)
    {
        m_manager = std::make_unique<ServerManager>(std::move(env));
        testsupport::awaitCleanup(*m_manager);
        m_manager->setLogs({});
        return *m_manager;
    }
    ServerManager &makeManager() { return makeManager(testsupport::environment(m_processes)); }

private Q_SLOTS:
    void init()
    {
        QSettings(QStringLiteral("Quivra"), QStringLiteral("QuivraMac")).clear();
        userdefaults::setValue(QStringLiteral("autoStartServer"), false);
        for (const char *name : fakeSettings)
            qunsetenv(name);
        m_processes = std::make_shared<GuardedProcessTable>();
    }

    void cleanup()
    {
        if (m_manager)
            m_manager->supervisor().stopForQuit();
        m_manager.reset();
    }

    void startsWithExactCommandLine()
    {
        qputenv("FAKE_ETSERVER_OUTPUT", "ready\\n");
        ServerManager &manager = makeManager();
        testsupport::ConsoleCapture console;
        QCOMPARE(manager.port(), 2022);
        QCOMPARE(manager.pairingToken().size(), 6);
        manager.startServer();
        QVERIFY(manager.isRunning());
        // The fake refuses to run with any other arguments than the eleven expected.
        QTRY_VERIFY(manager.logs().contains("[etserver] ready\n"));

        const QString support = manager.supervisor().supportDirectory();
        QVERIFY(support.startsWith(QDir::homePath()) && support.endsWith("/QuivraMac"));
        QCOMPARE(QFileInfo(QStringLiteral("/proc/%1/cwd").arg(manager.supervisor().pid()))
                     .symLinkTarget(),
                 QFileInfo(testsupport::fakeEtserverPath()).absolutePath());
        // The pairing listener starts alongside, so its lines may come before the child's.
        QVERIFY(console.lines().contains("[etserver] ready"));
    }

    void missingExecutableOnlyReports()
    {
        ServerEnvironment env = testsupport::environment(m_processes);
        env.locateExecutable = [] { return QString(); };
        ServerManager &manager = makeManager(env);
        manager.startServer();
        QVERIFY(!manager.isRunning());
        QCOMPARE(manager.supervisor().failure().kind, ServerFailure::NotInstalled);
        QCOMPARE(manager.failureReason(), "Eternal Terminal (etserver) is not installed");
    }

    void restartStopsFirstAndIgnoresOldExitNotice()
    {
        ServerManager &manager = makeManager();
        manager.startServer();
        const qint64 firstPid = manager.supervisor().pid();
        manager.setLogs({});
        manager.startServer();
        QTRY_VERIFY(manager.logs().contains("[QuivraMac] Starting server on port 2022..."));
        const QStringList lines = logLines(manager);
        QCOMPARE(lines.at(0),
                 QStringLiteral("[QuivraMac] Stopping server (PID %1)...").arg(firstPid));
        QCOMPARE(lines.at(1), "[QuivraMac] Server stopped");
        QVERIFY(lines.at(2).startsWith("[QuivraMac] Support dir: "));
        QCOMPARE(lines.at(4), "[QuivraMac] Starting server on port 2022...");
        // The first child's exit arrives after the new start and leaves the new child alone.
        QTRY_VERIFY(!QFileInfo::exists(QStringLiteral("/proc/%1").arg(firstPid)));
        QCoreApplication::processEvents(); // its exit notice, queued when it was reaped
        QVERIFY(manager.isRunning());
        QTRY_VERIFY(manager.uptime() >= 1.0);
    }

    void stopIsLoggedOnce()
    {
        ServerManager &manager = makeManager();
        manager.startServer();
        const qint64 pid = manager.supervisor().pid();
        const QString pidFile = manager.supervisor().pidFilePath();
        QFile(pidFile).open(QIODevice::WriteOnly);
        manager.stopServer();
        QTRY_VERIFY(!manager.isRunning());
        QCOMPARE(manager.supervisor().pid(), 0);
        QCOMPARE(manager.uptime(), 0.0);
        QVERIFY(!QFile::exists(pidFile));
        // Not again as an exit with SIGTERM's number, which reads as a fault.
        QTRY_VERIFY(!QFileInfo::exists(QStringLiteral("/proc/%1").arg(pid)));
        QCoreApplication::processEvents();
        QVERIFY(manager.logs().endsWith("[QuivraMac] Server stopped\n"));
    }

    void childIgnoringTermIsKilledAfterBoundedWait()
    {
        qputenv("FAKE_ETSERVER_IGNORE_TERM", "1");
        qputenv("FAKE_ETSERVER_OUTPUT", "up\\n");
        ServerManager &manager = makeManager();
        manager.startServer();
        QTRY_VERIFY(manager.logs().contains("[etserver] up"));
        // The stop waits on timers, not on the main loop: a 5 ms tick keeps coming meanwhile.
        QElapsedTimer sinceTick;
        qint64 worstGap = 0;
        QTimer tick;
        tick.setTimerType(Qt::PreciseTimer);
        connect(&tick, &QTimer::timeout, this,
                [&] { worstGap = std::max(worstGap, sinceTick.restart()); });
        // Waited for in an event loop of its own: QTRY_* would sleep between its looks.
        QSignalSpy stopped(&manager, &ServerManager::isRunningChanged);
        sinceTick.start();
        tick.start(5);
        manager.stopServer();
        QVERIFY(stopped.wait(5000));
        QVERIFY(!manager.isRunning());
        tick.stop();
        QVERIFY2(worstGap - 5 <= 20, qPrintable(QStringLiteral("stalled %1 ms").arg(worstGap - 5)));
        QVERIFY(
            manager.logs().contains("[QuivraMac] Force killing server (didn't exit gracefully)\n"
                                    "[QuivraMac] Server stopped\n"));
    }

    void childExitingByItselfKeepsProcessUntilStop()
    {
        qputenv("FAKE_ETSERVER_EXIT_CODE", "3");
        ServerManager &manager = makeManager();
        manager.startServer();
        manager.togglePairingMode();
        QVERIFY(manager.isPairing());
        // The exit notice, then when it is started again.
        QTRY_VERIFY(manager.logs().contains("[QuivraMac] Server exited with code 3\n"
                                            "[QuivraMac] Restarting server in 1 s"));
        QCOMPARE(manager.supervisor().failure(), (ServerFailure { ServerFailure::Exited, 3 }));
        QCOMPARE(manager.failureReason(), "etserver stopped unexpectedly (exit code 3)");
        QVERIFY(!manager.isRunning());
        QVERIFY(!manager.isPairing());
        QVERIFY(manager.phones().isListening()); // for the phone's report of what went wrong
        QCOMPARE(manager.uptime(), 0.0);
        QVERIFY(manager.supervisor().pid() != 0);

        manager.setLogs({});
        manager.stopServer();
        QCOMPARE(logLines(manager).size(), 2);
        QVERIFY(logLines(manager).at(0).startsWith("[QuivraMac] Stopping server (PID "));
        QCOMPARE(logLines(manager).at(1), "[QuivraMac] Server stopped");
        QCOMPARE(manager.supervisor().failure().kind,
                 ServerFailure::None); // a stop asked for is no failure
        QCOMPARE(manager.supervisor().pid(), 0);
    }

    // Worked out when read, so an idle app without a view never wakes for it; announced once
    // per whole tick only while watched; its reset is always announced.
    void uptimeIsReadWhenAskedAndTicksOnlyWhileWatched()
    {
        ServerManager &manager = makeManager();
        QList<double> values;
        connect(&manager, &ServerManager::uptimeChanged, &manager,
                [&] { values.append(manager.uptime()); });
        manager.startServer();
        QTRY_VERIFY(manager.uptime() >= 3.0);
        QVERIFY(values.isEmpty());

        manager.watchUptime(true);
        QTRY_VERIFY(values.size() >= 4);
        QVERIFY(values.first() >= 3.0);
        for (qsizetype i = 1; i < values.size(); ++i)
            QVERIFY(values.at(i) > values.at(i - 1));
        manager.watchUptime(false);
        const QList<double> watched = values;
        QTRY_VERIFY(manager.uptime() >= watched.last() + 3.0);
        QCOMPARE(values, watched);

        manager.stopServer();
        QTRY_COMPARE(manager.uptime(), 0.0);
        QCOMPARE(values.last(), 0.0);
        manager.startServer();
        QTRY_VERIFY(manager.uptime() >= 1.0);
    }

    void serverOutputIsLoggedAndBounded()
    {
        qputenv("FAKE_ETSERVER_OUTPUT", "one\\ntwo\\n\\xff\\xfe\\n");
        qputenv("FAKE_ETSERVER_BURST_BYTES", "300000");
        ServerManager &manager = makeManager();
        manager.startServer();
        QTRY_VERIFY(manager.logs().size() >= 9000);
        QTRY_VERIFY(manager.logs().endsWith("burst line of server output, 48 bytes\n"));
        QVERIFY(manager.logs().size() <= 10000);
        QVERIFY(!manager.logs().contains(QChar::ReplacementCharacter));
    }

    void outputFloodComesBeforeTheExitNotice()
    {
        // More output than is taken in one turn is still waiting when the server exits.
        qputenv("FAKE_ETSERVER_BURST_BYTES", "2000000");
        qputenv("FAKE_ETSERVER_EXIT_CODE", "3");
        ServerManager &manager = makeManager();
        manager.startServer();
        QTRY_VERIFY(manager.logs().contains("[QuivraMac] Server exited with code 3\n"));
        QVERIFY(manager.logs().contains("48 bytes\n[QuivraMac] Server exited with code 3\n"));
    }

    void togglingPairingIssuesFreshCodes()
    {
        ServerManager &manager = makeManager();
        QSet<QString> codes;
        for (int i = 0; i < 20; ++i) {
            manager.togglePairingMode();
            QVERIFY(manager.isPairing());
            codes.insert(manager.pairingToken());
            const QString code = manager.pairingToken();
            manager.togglePairingMode();
            QCOMPARE(manager.pairingToken(), code); // turning off keeps the last code
        }
        QVERIFY(codes.size() > 15);
        QVERIFY(manager.logs().contains("[QuivraMac] Pairing mode enabled. Token: "));
        QVERIFY(manager.logs().endsWith("[QuivraMac] Pairing mode disabled\n"));
    }

    void pairingCodesAreUniformDigits()
    {
        int counts[6][10] = {};
        for (int i = 0; i < 3000; ++i) {
            const QString token = ServerManager::generatePairingToken();
            QCOMPARE(token.size(), 6);
            for (int position = 0; position < 6; ++position) {
                const int digit = token.at(position).digitValue();
                QVERIFY(digit >= 0 && digit <= 9);
                ++counts[position][digit];
            }
        }
        for (const auto &position : counts) {
            for (const int count : position)
                QVERIFY2(count > 200, "a digit is missing or rare in a position");
        }
    }
};

QUIVRA_TEST_MAIN(TestServerManager)
#include "tst_servermanager.moc"
