#include "appbundle.h"
#include "testsupport.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>

#include <csignal>
#include <sys/stat.h>

// The real quivramac executable, with the fake etserver beside it where the app looks first.
class TestStartup : public QObject
{
    Q_OBJECT

    testsupport::AppBundle m_bundle;
    QString m_support;
    QList<qint64> m_orphans;

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
        m_support = qEnvironmentVariable("XDG_DATA_HOME") + "/QuivraMac";
        QDir().mkpath(m_support);
        qputenv("FAKE_ETSERVER_WRITE_PIDFILE", "1");
    }

    void cleanup()
    {
        m_bundle.stop();
        for (const qint64 pid : std::as_const(m_orphans))
            ::kill(pid_t(pid), SIGKILL);
        m_orphans.clear();
        QFile::remove(appSettingsPath());
    }

    void firstLaunchStartsServerAndSigtermStopsIt()
    {
        m_bundle.launch();
        QTRY_VERIFY(m_bundle.printed("Starting Quivra Server from " + m_bundle.filePath("etserver")
                                     + "..."));
        QTRY_VERIFY(QFile::exists(m_support + "/etserver.pid"));
        QFile pidFile(m_support + "/etserver.pid");
        QVERIFY(pidFile.open(QIODevice::ReadOnly));
        const qint64 child = pidFile.readAll().trimmed().toLongLong();
        QVERIFY(child > 0);
        QTRY_VERIFY(m_bundle.printed("PairingListener started on port 8080"));

        ::kill(pid_t(m_bundle.process().processId()), SIGTERM);
        QVERIFY(m_bundle.process().waitForFinished(5000));
        QCOMPARE(m_bundle.process().exitStatus(), QProcess::NormalExit);
        QVERIFY(!platform::ProcessTable::system()->exists(child));
        QVERIFY(!QFile::exists(m_support + "/etserver.pid"));
    }

    // FIFOs where the app keeps its files, made by mistake or by anything running as the user,
    // hold up neither its start nor its quit: each is refused without being waited on.
    void fifosInItsFoldersBlockNeitherStartNorQuit()
    {
        const QString pidFile = m_support + "/etserver.pid";
        const QString devices = m_support + "/devices.json";
        QDir().mkpath(QFileInfo(appSettingsPath()).absolutePath());
        for (const QString &path : { pidFile, devices, appSettingsPath() })
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        m_bundle.launch();
        QTRY_VERIFY(m_bundle.printed("PairingListener started on port 8080"));
        // The server started with the settings' default, and wrote a pid file of its own.
        QTRY_VERIFY(QFileInfo(pidFile).isFile());

        QVERIFY(QFile::remove(pidFile));
        QCOMPARE(::mkfifo(QFile::encodeName(pidFile).constData(), 0600), 0);
        ::kill(pid_t(m_bundle.process().processId()), SIGTERM);
        QVERIFY(m_bundle.process().waitForFinished(5000));
        QCOMPARE(m_bundle.process().exitStatus(), QProcess::NormalExit);
        QVERIFY(QFile::remove(devices));
    }

    void disabledAutoStartStillCleansOrphans()
    {
        setAutoStart(false);
        const qint64 orphan = startOrphan();
        m_bundle.launch();
        QTRY_VERIFY(
            m_bundle.printed(QStringLiteral("[QuivraMac] Killing etserver PID %1").arg(orphan)));
        QTRY_VERIFY(!platform::ProcessTable::system()->exists(orphan));
        ::kill(pid_t(m_bundle.process().processId()), SIGINT);
        QVERIFY(m_bundle.process().waitForFinished(5000));
        QCOMPARE(m_bundle.lineIndex("Starting Quivra Server"), -1);
    }

    void orphanIsStoppedBeforeNewServerStarts()
    {
        const qint64 orphan = startOrphan();
        m_bundle.launch();
        QTRY_VERIFY(m_bundle.lineIndex("Starting Quivra Server") >= 0);
        const qsizetype killed =
            m_bundle.lineIndex(QStringLiteral("[QuivraMac] Killing etserver PID %1").arg(orphan));
        QVERIFY(killed >= 0 && killed < m_bundle.lineIndex("Starting Quivra Server"));
        QVERIFY(!platform::ProcessTable::system()->exists(orphan));
    }

    // Without a display, or told --headless, the app runs on QtCore alone: no GUI, Quick,
    // Widgets or OpenGL library is ever mapped into it.
    void headlessMapsNoGuiLibrary_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("display");
        QTest::newRow("no display") << QStringList() << QString();
        QTest::newRow("--headless beside a display") << QStringList { "--headless" } << ":99";
    }

    void headlessMapsNoGuiLibrary()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, display);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM" })
            environment.remove(name);
        if (!display.isEmpty())
            environment.insert("DISPLAY", display);
        m_bundle.launch(arguments, environment);
        QTRY_VERIFY(m_bundle.printed("PairingListener started on port 8080"));

        QFile maps(QStringLiteral("/proc/%1/maps").arg(m_bundle.process().processId()));
        if (!maps.open(QIODevice::ReadOnly))
            QSKIP("no /proc/PID/maps on this system");
        const QString mapped = QString::fromUtf8(maps.readAll());
        QVERIFY(mapped.contains("libQt6Core.so"));
        static const QRegularExpression gui("/lib(Qt6(Gui|Quick|Qml|Widgets|OpenGL)|E?GLX?|OpenGL)"
                                            "[^/\\n]*\\.so");
        const QRegularExpressionMatch match = gui.match(mapped);
        QVERIFY2(!match.hasMatch(), qPrintable(match.captured()));
        QCOMPARE(m_bundle.lineIndex("QuivraMac runs without windows"), -1);
    }

    // They answer before anything else happens: no settings, no bus, no display, no files.
    void versionAndHelpTouchNothing()
    {
        QTemporaryDir home;
        QProcessEnvironment environment;
        environment.insert("HOME", home.path());
        environment.insert("DISPLAY", ":99");
        environment.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + home.filePath("bus"));
        const auto run = [&](const QString &argument) {
            QProcess app;
            app.setProcessEnvironment(environment);
            app.start(m_bundle.filePath("quivramac"), { argument });
            app.waitForFinished(5000);
            return std::pair(app.exitCode(), QString::fromUtf8(app.readAllStandardOutput()));
        };
        QCOMPARE(run("--version"), std::pair(0, QStringLiteral("QuivraMac " QUIVRA_VERSION "\n")));
        const auto [code, help] = run("--help");
        QCOMPARE(code, 0);
        QVERIFY(help.startsWith("Usage: quivramac [--headless]\n"));
        QVERIFY(QDir(home.path()).isEmpty());
    }
};

QUIVRA_TEST_MAIN(TestStartup)
#include "tst_startup.moc"
