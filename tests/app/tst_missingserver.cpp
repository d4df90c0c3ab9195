#include "appbundle.h"
#include "testsupport.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusInterface>

using testsupport::quivractl;

// The app on a machine with no etserver anywhere: every surface says so in the same words.
class TestMissingServer : public QObject
{
    Q_OBJECT

    testsupport::AppBundle m_bundle { testsupport::AppBundle::WithoutServer };

private Q_SLOTS:
    void initTestCase()
    {
        if (!QDBusConnection::sessionBus().isConnected())
            QSKIP("no session bus; run under dbus-run-session");
        m_bundle.launch();
        QTRY_VERIFY(
            QDBusConnection::sessionBus().interface()->isServiceRegistered("org.quivra.QuivraMac"));
    }

    void cleanupTestCase() { m_bundle.stop(); }

    void everySurfaceNamesTheReason()
    {
        const QString reason = "Eternal Terminal (etserver) is not installed";
        QDBusInterface app("org.quivra.QuivraMac", "/ServerManager",
                           "org.quivra.QuivraMac.ServerManager");
        QTRY_COMPARE(app.property("failureReason").toString(), reason);
        QVERIFY(!app.property("isRunning").toBool());

        const auto [statusCode, status] = quivractl({ "status" });
        QCOMPARE(statusCode, 0);
        QVERIFY2(status.startsWith("Server:       stopped\nReason:       " + reason + "\n"),
                 qPrintable(status));

        const auto [startCode, started] = quivractl({ "start" });
        QCOMPARE(startCode, 1);
        QCOMPARE(started.trimmed(), "The server did not start: " + reason);

        // Not sent round to a start that cannot work.
        const auto [pairCode, paired] = quivractl({ "pair" });
        QCOMPARE(pairCode, 1);
        QVERIFY(paired.contains(reason));
        QVERIFY(!paired.contains("quivractl start"));
    }
};

QUIVRA_TEST_MAIN(TestMissingServer)
#include "tst_missingserver.moc"
