#include "appbundle.h"
#include "devices/sshkey.h"
#include "pairingfixture.h"
#include "phoneclient.h"
#include "testsupport.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QJsonDocument>

#include <csignal>

using testsupport::quivractl;

// The desktop's notification service, as far as the app uses it.
class Notifications : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QStringList shown;

public Q_SLOTS:
    uint Notify(const QString &, uint, const QString &, const QString &summary, const QString &body,
                const QStringList &, const QVariantMap &, int)
    {
        shown.append(summary + " | " + body);
        return uint(shown.size());
    }
};

// The running app driven over its session-bus interface, directly and through quivractl.
class TestControl : public QObject
{
    Q_OBJECT

    testsupport::AppBundle m_bundle;

    static QDBusInterface manager()
    {
        return QDBusInterface("org.quivra.QuivraMac", "/ServerManager",
                              "org.quivra.QuivraMac.ServerManager");
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!QDBusConnection::sessionBus().isConnected())
            QSKIP("no session bus; run under dbus-run-session");
        // Before the app runs: a clear message and its own exit code.
        const auto [code, output] = quivractl({ "status" });
        QCOMPARE(code, 3);
        QVERIFY(output.startsWith("QuivraMac is not running."));
        QCOMPARE(quivractl({ "frobnicate" }).first, 2);

        m_bundle.launch();
        QTRY_VERIFY(
            QDBusConnection::sessionBus().interface()->isServiceRegistered("org.quivra.QuivraMac"));
    }

    void cleanupTestCase() { m_bundle.stop(); }

    void pairedPhoneIsAnnouncedListedAndRevoked()
    {
        Notifications notifications;
        QDBusConnection bus = QDBusConnection::sessionBus();
        QVERIFY(bus.registerService("org.freedesktop.Notifications"));
        QVERIFY(bus.registerObject("/org/freedesktop/Notifications", &notifications,
                                   QDBusConnection::ExportAllSlots));
        QVERIFY(bus.connect("org.quivra.QuivraMac", "/ServerManager",
                            "org.quivra.QuivraMac.ServerManager", "Paired", this,
                            SLOT(onPaired(QString, QString, QString, QString))));
        QDBusInterface app = manager();
        QTRY_VERIFY(app.property("isRunning").toBool());
        // Two phones one after the other, on the one listener: each announcement names the key
        // of its own pairing, not the phone paired before it.
        QStringList fingerprints;
        for (const QString name : { "Ana's iPhone", "Ben's iPhone" }) {
            if (!app.property("isPairing").toBool())
                app.call("TogglePairingMode");
            const QByteArray key = testsupport::ed25519Key("phone");
            fingerprints.append(SshKey::fromLine(key)->fingerprint());
            const QByteArray reply = testsupport::exchange(
                8080,
                "POST /pair?token=" + app.property("pairingToken").toString().toLatin1()
                    + " HTTP/1.1\r\nX-Device-Name: " + name.toUtf8() + "\r\n\r\n" + key);
            QVERIFY2(reply.endsWith("Paired Successfully"), reply.constData());
            QTRY_COMPARE(notifications.shown.size(), fingerprints.size());
            QVERIFY(notifications.shown.constLast().startsWith("Paired with " + name + " | "));
            QVERIFY2(notifications.shown.constLast().endsWith(" " + fingerprints.constLast()),
                     qPrintable(notifications.shown.constLast()));
            QTRY_COMPARE(m_paired.size(), fingerprints.size());
            QCOMPARE(m_paired.constLast(), name + " " + fingerprints.constLast());
        }
        QCOMPARE(app.property("lastPairedDevice").toString(), "Ben's iPhone");
        QVERIFY(quivractl({ "revoke", "--yes", "Ben's iPhone" }).first == 0);

        QVERIFY(quivractl({ "devices" }).second.contains("Ana's iPhone"));
        QCOMPARE(quivractl({ "revoke" }).first, 2); // which phone?
        QCOMPARE(quivractl({ "revoke", "--yes", "nobody" }).first, 1);
        QCOMPARE(quivractl({ "revoke", "--yes", "ana's iphone" }).first, 0);
        QVERIFY(quivractl({ "devices" }).second.contains("No paired phones."));
        bus.unregisterService("org.freedesktop.Notifications");
    }

    void methodsChangeTheSameStateAsThePanel()
    {
        QDBusInterface app = manager();
        QTRY_VERIFY(app.property("isRunning").toBool());
        app.call("StopServer");
        QTRY_VERIFY(!app.property("isRunning").toBool());
        QVERIFY(quivractl({ "status" }).second.contains("Server:       stopped"));
        // The phone still hears why this computer is not ready.
        const QJsonDocument report = QJsonDocument::fromJson(
            testsupport::replyBody(testsupport::exchange(8080, "GET /status HTTP/1.1\r\n\r\n")));
        QCOMPARE(report["ready"], false);
        QCOMPARE(report["diagnostics"][3]["id"], "etserver");
        QCOMPARE(report["diagnostics"][3]["passed"], false);
        const auto [code, started] = quivractl({ "start" });
        QCOMPARE(code, 0);
        QCOMPARE(started.trimmed(), "Server running, accepting connections on port 2022");
        QVERIFY(app.property("isRunning").toBool());

        QDBusConnection::sessionBus().connect(
            "org.quivra.QuivraMac", "/ServerManager", "org.freedesktop.DBus.Properties",
            "PropertiesChanged", this,
            SLOT(onPropertiesChanged(QString, QVariantMap, QStringList)));
        app.call("TogglePairingMode");
        const QString first = app.property("pairingToken").toString();
        QVERIFY(app.property("isPairing").toBool());
        QTRY_VERIFY(m_announced.contains("isPairing"));
        app.call("TogglePairingMode");
        app.call("TogglePairingMode");
        QVERIFY(app.property("pairingToken").toString() != first);
        app.call("TogglePairingMode");
        QVERIFY(quivractl({ "logs" }).second.contains("[QuivraMac] Pairing mode disabled"));
    }

    void secondInstanceLeavesTheFirstAlone()
    {
        testsupport::AppBundle second;
        second.launch();
        QVERIFY(second.process().waitForFinished(5000));
        QCOMPARE(second.process().exitCode(), 0);
        QVERIFY(second.printed("QuivraMac is already running"));
        QVERIFY(manager().property("isRunning").toBool());
    }

    void interruptedPairWarnsOfGuessesAndSwitchesPairingOff()
    {
        QProcess pair;
        pair.setProcessChannelMode(QProcess::MergedChannels);
        pair.start(testsupport::quivractlPath(), { "pair" });
        QByteArray output;
        QTRY_VERIFY((output += pair.readAll()).contains("Ctrl-C cancels."));
        const QString code = manager().property("pairingToken").toString();
        QVERIFY(output.contains(QByteArray("Pairing code: " + code.toLatin1())));
        QVERIFY(manager().property("isPairing").toBool());
        // Someone guessing: the one at the terminal hears where from.
        const QByteArray wrong = code == "000000" ? "000001" : "000000";
        for (int i = 0; i < 3; ++i)
            testsupport::exchange(8080, "POST /pair?token=" + wrong + " HTTP/1.1\r\n\r\n",
                                  QHostAddress("127.0.0.2"));
        QTRY_VERIFY(
            (output += pair.readAll()).contains("Someone is guessing the code from 127.0.0.2\n"));
        ::kill(pid_t(pair.processId()), SIGINT);
        QVERIFY(pair.waitForFinished(5000));
        QCOMPARE(pair.exitCode(), 130);
        QVERIFY(!manager().property("isPairing").toBool());
    }

public Q_SLOTS:
    void onPropertiesChanged(const QString &, const QVariantMap &changed, const QStringList &)
    {
        m_announced += changed.keys();
    }
    void onPaired(const QString &name, const QString &fingerprint, const QString &, const QString &)
    {
        m_paired.append(name + " " + fingerprint);
    }

private:
    QStringList m_announced;
    QStringList m_paired;
};

QUIVRA_TEST_MAIN(TestControl)
#include "tst_control.moc"
