#include "platform/userdefaults.h"
#include "server/processids.h"
#include "server/servermanager.h"
#include "testsupport.h"

#include <QSettings>

#include <csignal>

using testsupport::GuardedProcessTable;

// Orphans are real processes that this test starts detached, as a crashed earlier instance would
// have left them; only those may be signalled.
class TestOrphanCleanup : public QObject
{
    Q_OBJECT

    std::shared_ptr<GuardedProcessTable> m_processes;
    QList<qint64> m_started;
    QString m_support;

    qint64 startDetached(const QString &program, const QStringList &arguments)
    {
        qint64 pid = 0;
        if (!QProcess::startDetached(program, arguments, QString(), &pid))
            return 0;
        m_started.append(pid);
        m_processes->allow(pid);
        return pid;
    }

    qint64 startOrphan()
    {
        const qint64 pid = startDetached(testsupport::fakeEtserverPath(),
                                         testsupport::etserverArguments(m_support));
        // Construction must find it by its executable, so wait until it is exec'd.
        if (!QTest::qWaitFor([&] { return m_processes->isOwnServer(pid); }, 5000))
            return 0;
        return pid;
    }

    // Once its clean-up, which runs on timers, is over.
    std::unique_ptr<ServerManager> construct()
    {
        auto manager = std::make_unique<ServerManager>(testsupport::environment(m_processes));
        testsupport::awaitCleanup(*manager);
        return manager;
    }
    // The clean-up's own lines, without the pairing listener's.
    static QString cleanupLog(const ServerManager &manager)
    {
        QString lines;
        for (const QString &line : manager.logs().split('\n', Qt::SkipEmptyParts)) {
            if (line.contains("orphaned"))
                lines += line + '\n';
        }
        return lines;
    }

private Q_SLOTS:
    void init()
    {
        QSettings(QStringLiteral("Quivra"), QStringLiteral("QuivraMac")).clear();
        userdefaults::setValue(QStringLiteral("autoStartServer"), false);
        qunsetenv("FAKE_ETSERVER_WRITE_PIDFILE");
        qunsetenv("FAKE_ETSERVER_IGNORE_TERM");
        m_processes = std::make_shared<GuardedProcessTable>();
        m_support = testsupport::environment(m_processes).supportDirectory();
    }

    void cleanup()
    {
        for (const qint64 pid : std::as_const(m_started))
            m_processes->signal(pid, SIGKILL);
        m_started.clear();
        QFile::remove(m_support + "/etserver.pid");
    }

    void orphanFromPidFileIsStoppedBeforeAnythingElse()
    {
        qputenv("FAKE_ETSERVER_WRITE_PIDFILE", "1");
        const qint64 orphan = startOrphan();
        QVERIFY(orphan > 0);
        QTRY_VERIFY(QFile::exists(m_support + "/etserver.pid"));
        const auto manager = construct();
        QVERIFY(!m_processes->exists(orphan));
        QVERIFY(!QFile::exists(m_support + "/etserver.pid"));
        const QString found =
            QStringLiteral("[QuivraMac] Found orphaned server (PID %1 from pidfile)\n").arg(orphan);
        QCOMPARE(cleanupLog(*manager), found + "[QuivraMac] Cleaned up orphaned server(s)\n");
    }

    void orphanIgnoringTermIsFoundByProcessTableAndKilled()
    {
        qputenv("FAKE_ETSERVER_IGNORE_TERM", "1");
        const qint64 orphan = startOrphan();
        QVERIFY(orphan > 0);
        const auto manager = construct();
        QVERIFY(!m_processes->exists(orphan));
        QCOMPARE(cleanupLog(*manager),
                 QStringLiteral("[QuivraMac] Found orphaned server (PID %1 via pgrep)\n"
                                "[QuivraMac] Cleaned up orphaned server(s)\n")
                     .arg(orphan));
    }

    void commandLinesThatOnlyMentionEtserverSurvive()
    {
        // pgrep -f etserver lists this shell; it is not an etserver and must not be touched.
        const qint64 lookalike =
            startDetached("/bin/sh", { "-c", "while :; do sleep 1; done", "etserver" });
        QVERIFY(lookalike > 0);
        QProcess pgrep;
        pgrep.start("/usr/bin/pgrep", { "-f", "etserver" });
        QVERIFY(pgrep.waitForFinished());
        QVERIFY(processids::parseList(pgrep.readAllStandardOutput()).contains(lookalike));

        const auto manager = construct();
        QVERIFY(m_processes->exists(lookalike));
        QVERIFY(!m_processes->refused().contains(lookalike));
        QVERIFY(!manager->logs().contains(QString::number(lookalike)));
    }

    void handStartedServerSurvives()
    {
        // A real etserver by name, of this user, but started for something else.
        QTemporaryDir elsewhere;
        const qint64 own = startDetached(testsupport::fakeEtserverPath(),
                                         testsupport::etserverArguments(elsewhere.path()));
        QVERIFY(own > 0);
        QVERIFY(QTest::qWaitFor([&] { return m_processes->isOwnServer(own); }, 5000));
        const auto manager = construct();
        QVERIFY(m_processes->exists(own));
        QVERIFY(!m_processes->refused().contains(own));
        QVERIFY(!manager->logs().contains(QString::number(own)));
        manager->supervisor().stopForQuit();
        QVERIFY(m_processes->exists(own));
    }

    void unusablePidFilesSignalNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("letters") << QByteArray("abc\n");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("negative") << QByteArray("-1\n");
        QTest::newRow("zero") << QByteArray("0");
    }

    void unusablePidFilesSignalNothing()
    {
        QFETCH(QByteArray, content);
        const QString pidFile = m_support + "/etserver.pid";
        QFile file(pidFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        auto manager = construct();
        QVERIFY(m_processes->refused().isEmpty());
        QVERIFY(!manager->logs().contains("from pidfile"));
        // Unparsable files stay at construction and go at quit; numbers are consumed at once.
        QCOMPARE(QFile::exists(pidFile), !processids::parse(QString::fromUtf8(content)));
        manager->supervisor().stopForQuit();
        QVERIFY(!QFile::exists(pidFile));
        QVERIFY(m_processes->refused().isEmpty());
    }

    void quitWithServerStoppedStillStopsPidFileProcess()
    {
        const auto manager = construct();
        const qint64 orphan = startOrphan();
        QVERIFY(orphan > 0);
        QFile file(m_support + "/etserver.pid");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::number(orphan) + "\n");
        file.close();
        manager->supervisor().stopForQuit();
        QVERIFY(!m_processes->exists(orphan));
        QVERIFY(!file.exists());
    }
};

QUIVRA_TEST_MAIN(TestOrphanCleanup)
#include "tst_orphancleanup.moc"
