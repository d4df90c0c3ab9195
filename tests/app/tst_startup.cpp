#include "testsupport.h"

#include <QDir>
#include <QProcess>
#include <QSettings>

#include <csignal>

// The real quivramac executable, with the fake etserver beside it where the app looks first.
class TestStartup : public QObject
{
    Q_OBJECT

    QTemporaryDir m_bundle;
    QString m_support;
    std::unique_ptr<QProcess> m_app;
    QByteArray m_output;
    QList<qint64> m_orphans;

    void launch()
    {
        m_output.clear();
        m_app = std::make_unique<QProcess>();
        m_app->setProcessChannelMode(QProcess::MergedChannels);
        connect(m_app.get(), &QProcess::readyRead, this, [this] { m_output += m_app->readAll(); });
        m_app->start(m_bundle.filePath("quivramac"), {});
        QVERIFY(m_app->waitForStarted());
    }

    bool printed(const QString &line) const
    {
        return QString::fromUtf8(m_output).split('\n').contains(line);
    }
    qsizetype lineIndex(const QString &prefix) const
    {
        const QStringList lines = QString::fromUtf8(m_output).split('\n');
        for (qsizetype i = 0; i < lines.size(); ++i) {
            if (lines.at(i).startsWith(prefix))
                return i;
        }
        return -1;
    }

    qint64 startOrphan()
    {
        qint64 pid = 0;
        if (QProcess::startDetached(testsupport::fakeEtserverPath(),
                                    testsupport::etserverArguments(m_support), {}, &pid))
            m_orphans << pid;
        [[maybe_unused]] const bool execd = QTest::qWaitFor(
            [pid] { return platform::ProcessTable::system()->isOwnServer(pid); }, 5000);
        return pid;
    }

    // The app runs without test mode, so its settings live where a user's would.
    static QString appSettingsPath()
    {
        return qEnvironmentVariable("XDG_CONFIG_HOME") + "/Quivra/QuivraMac.conf";
    }

    static void setAutoStart(bool on)
    {
        QSettings settings(appSettingsPath(), QSettings::IniFormat);
        settings.setValue("autoStartServer", on);
    }

private Q_SLOTS:
    void initTestCase()
    {
        // The app cleans up every etserver of this user: never run it beside one we did not start.
        QProcess pgrep;
        pgrep.start("pgrep", { "-x", "-u", QString::number(::getuid()), "etserver" });
        pgrep.waitForFinished();
        if (!pgrep.readAllStandardOutput().trimmed().isEmpty())
            QSKIP("an etserver of this user is running; the app would stop it");
        QVERIFY(QFile::copy(QStringLiteral(QUIVRA_APP_EXECUTABLE), m_bundle.filePath("quivramac")));
        QVERIFY(QFile::copy(testsupport::fakeEtserverPath(), m_bundle.filePath("etserver")));
        QFile::setPermissions(m_bundle.filePath("quivramac"), QFile::ExeOwner | QFile::ReadOwner);
        QFile::setPermissions(m_bundle.filePath("etserver"), QFile::ExeOwner | QFile::ReadOwner);
        m_support = qEnvironmentVariable("XDG_DATA_HOME") + "/QuivraMac";
        QDir().mkpath(m_support);
        qputenv("FAKE_ETSERVER_WRITE_PIDFILE", "1");
    }

    void cleanup()
    {
        // A graceful stop first: killing the app outright would orphan the server it started.
        if (m_app && m_app->state() != QProcess::NotRunning) {
            m_app->terminate();
            if (!m_app->waitForFinished(5000)) {
                m_app->kill();
                m_app->waitForFinished();
            }
        }
        for (const qint64 pid : std::as_const(m_orphans))
            ::kill(pid_t(pid), SIGKILL);
        m_orphans.clear();
        QFile::remove(appSettingsPath());
    }

    void firstLaunchStartsServerAndSigtermStopsIt()
    {
        launch();
        QTRY_VERIFY(
            printed("Starting Quivra Server from " + m_bundle.filePath("etserver") + "..."));
        QTRY_VERIFY(QFile::exists(m_support + "/etserver.pid"));
        QFile pidFile(m_support + "/etserver.pid");
        QVERIFY(pidFile.open(QIODevice::ReadOnly));
        const qint64 child = pidFile.readAll().trimmed().toLongLong();
        QVERIFY(child > 0);
        QTRY_VERIFY(lineIndex("PairingListener started on port 8080") >= 0
                    || lineIndex("Failed to start PairingListener") >= 0);

        ::kill(pid_t(m_app->processId()), SIGTERM);
        QVERIFY(m_app->waitForFinished(5000));
        QCOMPARE(m_app->exitStatus(), QProcess::NormalExit);
        QVERIFY(!platform::ProcessTable::system()->exists(child));
        QVERIFY(!QFile::exists(m_support + "/etserver.pid"));
    }

    void disabledAutoStartStillCleansOrphans()
    {
        setAutoStart(false);
        const qint64 orphan = startOrphan();
        launch();
        QTRY_VERIFY(printed(QStringLiteral("[QuivraMac] Killing etserver PID %1").arg(orphan)));
        QTRY_VERIFY(!platform::ProcessTable::system()->exists(orphan));
        ::kill(pid_t(m_app->processId()), SIGINT);
        QVERIFY(m_app->waitForFinished(5000));
        QCOMPARE(lineIndex("Starting Quivra Server"), -1);
    }

    void orphanIsStoppedBeforeNewServerStarts()
    {
        const qint64 orphan = startOrphan();
        launch();
        QTRY_VERIFY(lineIndex("Starting Quivra Server") >= 0);
        const qsizetype killed =
            lineIndex(QStringLiteral("[QuivraMac] Killing etserver PID %1").arg(orphan));
        QVERIFY(killed >= 0 && killed < lineIndex("Starting Quivra Server"));
        QVERIFY(!platform::ProcessTable::system()->exists(orphan));
    }
};

QUIVRA_TEST_MAIN(TestStartup)
#include "tst_startup.moc"
