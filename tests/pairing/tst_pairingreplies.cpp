#include "pairing/pairinglistener.h"
#include "pairingfixture.h"
#include "phoneclient.h"
#include "platform/wording.h"

#include <QDir>

using namespace testsupport;

namespace {

QByteArray plain(const QByteArray &status, const QByteArray &body)
{
    return "HTTP/1.1 " + status + "\r\nContent-Type: text/plain\r\nContent-Length: "
        + QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
}

QByteArray json(const QByteArray &body)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nContent-Length: "
        + QByteArray::number(body.size())
        + "\r\nAccess-Control-Allow-Origin: *\r\nConnection: close\r\n\r\n" + body;
}

QByteArray check(const char *id, const char *name, const char *failure = nullptr,
                 bool canFix = false)
{
    return QByteArray("{\"id\":\"") + id + "\",\"name\":\"" + name + "\",\"passed\":"
        + (failure ? "false,\"message\":\"" + QByteArray(failure) + "\"" : QByteArray("true"))
        + ",\"canFix\":" + (canFix ? "true" : "false") + "}";
}

void makeSshDirectory()
{
    QDir().mkpath(QDir::homePath() + "/.ssh");
    QFile::setPermissions(QDir::homePath() + "/.ssh",
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile keys(QDir::homePath() + "/.ssh/authorized_keys");
    keys.open(QIODevice::WriteOnly);
    keys.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

} // namespace

class TestPairingReplies : public QObject
{
    Q_OBJECT

    std::unique_ptr<PairingFixture> m_fixture;

private Q_SLOTS:
    void init()
    {
        QDir(QDir::homePath() + "/.ssh").removeRecursively();
        m_fixture = std::make_unique<PairingFixture>();
    }
    void cleanup() { m_fixture.reset(); }

    void statusReportIsByteExact()
    {
        const QByteArray tail = ",\"hostname\":\"studio\",\"username\":\"tester\",\"ip\":\"192.168."
                                "1.20\",\"pairingPort\":"
            + QByteArray::number(m_fixture->port()) + "}";
        // Not ready: the JSON escapes "/" and writes the arrows as UTF-8.
        m_fixture->closeSshDaemon();
        QCOMPARE(
            exchange(m_fixture->port(), "GET /status HTTP/1.1\r\n\r\n"),
            json("{\"ready\":false,\"diagnostics\":["
                 + check("ssh_daemon", "SSH Server",
                         wording::sshNotRunning(platform::sshServerInstall()).toUtf8().constData())
                 + "," + check("ssh_dir", "SSH Directory", "~\\/.ssh directory doesn't exist", true)
                 + ","
                 + check("auth_keys", "Authorized Keys", "~\\/.ssh directory doesn't exist", true)
                 + "," + check("etserver", "Quivra Server") + "," + check("network", "Network")
                 + ","
                 + check("tailscale", "Tailscale", "Install Tailscale to connect from anywhere")
                 + "]" + tail));
    }

    // Asked again after the machine changed, the same listener reports the change.
    void statusReportWithTailscaleIsReady()
    {
        QVERIFY(exchange(m_fixture->port(), "GET /status HTTP/1.1\r\n\r\n")
                    .contains("{\"ready\":false,"));
        makeSshDirectory();
        m_fixture->setInterfaces(
            { { "en0", true, "192.168.1.20" }, { "tailscale0", true, "100.101.102.103" } });
        const QByteArray reply = exchange(
            m_fixture->port(), "GET /status?verbose=1 HTTP/1.1\r\nHost: Studio.local:8080\r\n\r\n");
        QCOMPARE(reply,
                 json("{\"ready\":true,\"diagnostics\":[" + check("ssh_daemon", "SSH Server") + ","
                      + check("ssh_dir", "SSH Directory") + ","
                      + check("auth_keys", "Authorized Keys") + ","
                      + check("etserver", "Quivra Server") + "," + check("network", "Network") + ","
                      + check("tailscale", "Tailscale")
                      + "],\"hostname\":\"studio\",\"username\":\"tester\",\"ip\":\"100.101.102."
                        "103\",\"tailscaleIP\":\"100.101.102.103\",\"pairingPort\":"
                      + QByteArray::number(m_fixture->port()) + "}"));
    }

    void everyPlainReplyIsByteExact()
    {
        const quint16 port = m_fixture->port();
        const QByteArray key = ed25519Key();
        QCOMPARE(exchange(port, "POST /status HTTP/1.1\r\n\r\n"),
                 plain("404 Not Found", "Not Found"));

        QCOMPARE(
            exchange(port, PairingFixture::pairRequest(m_fixture->manager().pairingToken(), key)),
            plain("403 Forbidden", "Pairing mode not active"));

        QString code = m_fixture->startPairing();
        QCOMPARE(exchange(port, "POST /pair HTTP/1.1\r\n\r\n" + key),
                 plain("401 Unauthorized", "Invalid Token"));
        QCOMPARE(exchange(port, "POST /pair?token=" + code.toLatin1() + " HTTP/1.1\r\n\r\n"),
                 plain("400 Bad Request", "Missing Key Body"));
        const QList<QByteArray> notKeys { "   ", "ecdsa-sha2-nistp256 AAAA phone", "ssh-ed25519" };
        for (const QByteArray &body : notKeys)
            QCOMPARE(exchange(port, PairingFixture::pairRequest(code, body)),
                     plain("400 Bad Request", "Invalid Key Format"));
        // Without the frame of a request, nothing is read from it: neither the code nor the key.
        const QList<QByteArray> unframed {
            key + " /pair?token=" + code.toLatin1(),
            "POST /pair?token=" + code.toLatin1() + " HTTP/1.1\r\n" + key,
        };
        for (const QByteArray &request : unframed)
            QCOMPARE(exchange(port, request), plain("400 Bad Request", "Invalid Request"));
        QCOMPARE(m_fixture->keysFile(), "<absent>");
        QVERIFY(m_fixture->manager().isPairing());

        PairingListener orphaned({});
        orphaned.start(0, false);
        const quint16 orphanedPort = orphaned.port();
        QCOMPARE(exchange(orphanedPort, PairingFixture::pairRequest(code, key)),
                 plain("503 Service Unavailable", "Server not ready"));
    }

    void pairsEndToEnd()
    {
        const QString code = m_fixture->startPairing();
        const QByteArray key = ed25519Key("me@phone");
        QCOMPARE(exchange(m_fixture->port(),
                          PairingFixture::pairRequest(code, "\r\n " + key + " \r\n",
                                                      "x-device-name:\tWork Phone \r\n")),
                 plain("200 OK", "Paired Successfully"));
        QCOMPARE(m_fixture->keysFile(),
                 "\n# Quivra Terminal - Added on "
                     + QDate::currentDate().toString("yyyy-MM-dd").toLatin1() + "\n" + key + "\n");
        ServerManager &manager = m_fixture->manager();
        QVERIFY(!manager.isPairing());
        QCOMPARE(manager.lastPairedDevice(), "Work Phone");
        // Listed as a paired phone, with where it paired from.
        const QList<PairedDevice> devices = manager.phones().devices().devices();
        QCOMPARE(devices.size(), 1);
        QCOMPARE(devices.at(0).name, "Work Phone");
        QCOMPARE(devices.at(0).address, "127.0.0.1");
        QCOMPARE(devices.at(0).keyComment, "me@phone");
    }

    // A name and a key comment that could pass for another phone's or break a line.
    void deviceNameAndKeyCommentAreDefused()
    {
        QString code = m_fixture->startPairing();
        exchange(m_fixture->port(),
                 PairingFixture::pairRequest(code, ed25519Key(), "X-Device-Name:  \r\n"));
        QCOMPARE(m_fixture->manager().lastPairedDevice(), "iPhone");

        code = m_fixture->startPairing();
        testsupport::ConsoleCapture console;
        const QByteArray key = ed25519Key("me\xe2\x80\x8e@ph\xe2\x80\xa8one");
        exchange(m_fixture->port(),
                 PairingFixture::pairRequest(code, key,
                                             "X-Device-Name: A\nB\x1b[31m\xe2\x80\xae\xe2\x80\x8f"
                                             "\xd8\x9c\xe2\x80\x8b\xe2\x81\xa0\xef\xbb\xbf"
                                             "C" + QByteArray(80, 'x')
                                                 + "\r\n"));
        const QString name = m_fixture->manager().lastPairedDevice();
        QCOMPARE(name, "AB[31mC" + QString(57, 'x'));
        QVERIFY(m_fixture->keysFile().endsWith(
            QByteArray(key.left(key.indexOf(' ', 12)) + " me@phone\n")));
        QCOMPARE(m_fixture->manager().phones().devices().devices().constFirst().keyComment,
                 "me@phone");
        const QString everything = console.lines().join('\n') + m_fixture->manager().logs();
        QVERIFY(!everything.contains(QChar(0x1b)) && !everything.contains(QChar(0x202e)));
    }
};

QUIVRA_TEST_MAIN(TestPairingReplies)
#include "tst_pairingreplies.moc"
