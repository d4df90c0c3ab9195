#include "platform/userdefaults.h"
#include "server/serverchecks.h"
#include "server/servermanager.h"
#include "testsupport.h"

#include <QSettings>
#include <QTcpServer>

#include <csignal>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace std::chrono_literals;
using testsupport::GuardedProcessTable;

// What the supervisor does without being asked, with real children and real ports; its pauses run
// on a clock the test moves.
class TestServerRecovery : public QObject
{
    Q_OBJECT

    std::shared_ptr<GuardedProcessTable> m_processes;
    testsupport::ManualClock m_clock;
    std::unique_ptr<ServerManager> m_manager;

    ServerManager &makeManager(quint16 pairingPort = 0)
    {
        ServerEnvironment env = testsupport::environment(m_processes);
        env.steadyNow = m_clock.clock();
        env.pairingPort = pairingPort;
        m_manager = std::make_unique<ServerManager>(std::move(env));
        testsupport::awaitCleanup(*m_manager);
        return *m_manager;
    }
    qsizetype starts() const
    {
        return m_manager->logs().count("[QuivraMac] Starting server on port 2022...");
    }
    QString lastLines(int count) const
    {
        const QStringList lines = m_manager->logs().split('\n', Qt::SkipEmptyParts);
        return lines.mid(lines.size() - count).join('\n');
    }

private Q_SLOTS:
    void init()
    {
        QSettings(QStringLiteral("Quivra"), QStringLiteral("QuivraMac")).clear();
        userdefaults::setValue(QStringLiteral("autoStartServer"), false);
        m_processes = std::make_shared<GuardedProcessTable>();
        m_clock = {};
        QFile::remove(testsupport::environment(m_processes).supportDirectory()
                      + "/fake-etserver-starts");
    }

    void cleanup()
    {
        if (m_manager)
            m_manager->supervisor().stopForQuit();
        m_manager.reset();
        qunsetenv("FAKE_ETSERVER_CRASHES");
    }

    void crashingServerBacksOffThenGivesUp()
    {
        qputenv("FAKE_ETSERVER_CRASHES", "100");
        ServerManager &manager = makeManager();
        manager.startServer();
        for (const auto pause : { 1s, 2s, 4s, 8s }) {
            QTRY_VERIFY(manager.supervisor().pendingRestart());
            QCOMPARE(*manager.supervisor().pendingRestart(), std::chrono::milliseconds(pause));
            QVERIFY(!manager.isRunning());
            QCOMPARE(manager.failureReason(), "etserver stopped unexpectedly (signal 6)");
            // The exit notice first, then the restart's own line.
            QVERIFY2(lastLines(2).startsWith("[QuivraMac] Server ended by signal 6 (Aborted)\n"
                                             "[QuivraMac] Restarting server in "
                                             + QString::number(pause.count()) + " s"),
                     qPrintable(lastLines(2)));
            const qsizetype before = starts();
            m_clock.advance(pause);
            QTRY_COMPARE(starts(), before + 1);
        }
        // The fifth unexpected stop within ten minutes.
        QTRY_VERIFY(manager.failureReason().contains("gave up"));
        QCOMPARE(manager.failureReason(),
                 "etserver stopped unexpectedly (signal 6); QuivraMac gave up restarting it after "
                 "5 stops in 10 minutes");
        QVERIFY(!manager.supervisor().pendingRestart());
        QVERIFY(lastLines(1).startsWith("[QuivraMac] Not restarting: "));

        // The user's own start begins afresh.
        manager.startServer();
        QTRY_VERIFY(manager.supervisor().pendingRestart());
        QCOMPARE(*manager.supervisor().pendingRestart(), std::chrono::milliseconds(1s));
        manager.stopServer();
        QVERIFY(!manager.supervisor().pendingRestart());
        QCOMPARE(manager.failureReason(), QString());
    }

    void stopsSpreadOverTimeBackOffToSixteenSeconds()
    {
        qputenv("FAKE_ETSERVER_CRASHES", "100");
        ServerManager &manager = makeManager();
        manager.startServer();
        // Three minutes apart: never five within ten minutes, so it never gives up.
        for (const auto pause : { 1s, 2s, 4s, 8s, 16s, 16s }) {
            QTRY_VERIFY(manager.supervisor().pendingRestart());
            QCOMPARE(*manager.supervisor().pendingRestart(), std::chrono::milliseconds(pause));
            const qsizetype before = starts();
            m_clock.advance(3min);
            QTRY_COMPARE(starts(), before + 1);
        }
    }

    void takenPortIsReportedAndServerStartsOnceFree()
    {
        QTcpServer holder;
        QVERIFY(holder.listen(QHostAddress::LocalHost, 2022));
        ServerManager &manager = makeManager();
        QSignalSpy reasons(&manager, &ServerManager::failureReasonChanged);
        manager.startServer();
        QVERIFY(!manager.isRunning());
        QCOMPARE(manager.supervisor().pid(), 0); // not launched just to fail
        QCOMPARE(manager.failureReason(), "Port 2022 is in use");
        QCOMPARE(reasons.size(), 1);
        QVERIFY(manager.supervisor().isWaitingForPort());
        QVERIFY(!manager.supervisor().pendingRestart()); // a restart cannot free the port

        holder.close();
        m_clock.advance(ServerSupervisor::portRecheckInterval);
        QTRY_VERIFY(manager.isRunning());
        QCOMPARE(manager.failureReason(), QString());
        QVERIFY(manager.logs().contains("[QuivraMac] Port 2022 is free\n"));
    }

    void takenPairingPortIsReportedAndRetried()
    {
        QTcpServer holder;
        QVERIFY(holder.listen(QHostAddress::Any, 0));
        const quint16 port = holder.serverPort();
        ServerManager &manager = makeManager(port);
        QVERIFY(!manager.phones().isListening());
        QCOMPARE(manager.failureReason(),
                 QStringLiteral("Port %1 is in use, so phones cannot pair").arg(port));
        // Whether or not the server runs.
        manager.startServer();
        QTRY_VERIFY(manager.isRunning());
        QVERIFY(!manager.phones().isListening());
        holder.close();
        m_clock.advance(PhoneService::retryInterval);
        QTRY_VERIFY(manager.phones().isListening());
        QCOMPARE(manager.phones().port(), port);
        QCOMPARE(manager.failureReason(), QString());
    }

    void serverLogsKeepTheNewestTen()
    {
        ServerManager &manager = makeManager();
        const QDir support(manager.supervisor().supportDirectory());
        const QDateTime start = QDateTime::currentDateTime().addDays(-1);
        for (int i = 0; i < 14; ++i) {
            QFile log(
                support.filePath(QStringLiteral("etserver-2026-01-%1_%2.log").arg(i + 10).arg(i)));
            QVERIFY(log.open(QIODevice::WriteOnly));
            log.setFileTime(start.addSecs(60 * i), QFileDevice::FileModificationTime);
        }
        QFile(support.filePath("devices.json.keep")).open(QIODevice::WriteOnly);
        manager.startServer();
        QTRY_VERIFY(manager.isRunning());
        const QStringList kept = support.entryList({ "etserver-*.log" }, QDir::Files, QDir::Name);
        QCOMPARE(kept.size(), 10);
        QVERIFY(kept.first().startsWith("etserver-2026-01-14_4"));
        QVERIFY(support.exists("devices.json.keep"));
    }

    void socketOwnershipIsJudgedByTheEntryItself()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("et.fifo");
        const uint me = serverchecks::currentUser();
        QVERIFY(!serverchecks::ownedByAnotherUser(path, me)); // nothing there
        QFile(path).open(QIODevice::WriteOnly);
        QVERIFY(!serverchecks::ownedByAnotherUser(path, me));
        QVERIFY(serverchecks::ownedByAnotherUser(path, me + 1));
    }

    // Quit tidies the server's socket away only when no one serves it any more: another
    // process's live socket of this user stays, the stale one a dead server left goes.
    void quitRemovesOnlyAStaleServerSocket()
    {
        QTemporaryDir dir;
        const QByteArray path = QFile::encodeName(dir.filePath("et.fifo"));
        int ready[2];
        QCOMPARE(::pipe(ready), 0);
        const pid_t other = ::fork();
        if (other == 0) { // only system calls from here on
            sockaddr_un address {};
            address.sun_family = AF_UNIX;
            std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
            const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
            if (::bind(fd, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0
                && ::listen(fd, 1) == 0)
                ::write(ready[1], "+", 1);
            ::_exit(::pause());
        }
        ::close(ready[1]);
        char listening = 0;
        QCOMPARE(::read(ready[0], &listening, 1), 1);
        ::close(ready[0]);

        ServerEnvironment env = testsupport::environment(m_processes);
        env.serverFifo = QFile::decodeName(path);
        m_manager = std::make_unique<ServerManager>(std::move(env));
        testsupport::awaitCleanup(*m_manager);
        m_manager->supervisor().stopForQuit();
        const bool keptLive = QFileInfo::exists(QFile::decodeName(path));
        ::kill(other, SIGKILL);
        ::waitpid(other, nullptr, 0);
        QVERIFY(keptLive);
        QVERIFY(QFileInfo::exists(QFile::decodeName(path))); // the stale socket stays behind
        m_manager->supervisor().stopForQuit();
        QVERIFY(!QFileInfo::exists(QFile::decodeName(path)));
    }
};

QUIVRA_TEST_MAIN(TestServerRecovery)
#include "tst_serverrecovery.moc"
