#include "dnssddaemon.h"
#include "net/hostlabel.h"
#include "pairing/pairinglistener.h"
#include "pairingfixture.h"
#include "phoneclient.h"
#include "testsupport.h"

#include <QNetworkProxy>
#include <QTcpSocket>

#include <sys/socket.h>

using testsupport::exchange;

class TestPairingListener : public QObject
{
    Q_OBJECT

    std::unique_ptr<PairingListener> m_listener;
    quint16 m_port = 0;

private Q_SLOTS:
    void init()
    {
        m_listener = std::make_unique<PairingListener>(PairingListener::Setup {});
        m_listener->start(0, false);
        QVERIFY(m_listener->isListening());
        m_port = m_listener->port();
    }

    void cleanup() { m_listener.reset(); }

    void printsConnectionLifeAndKeepsServingAfterBadBytes()
    {
        testsupport::ConsoleCapture console;
        QCOMPARE(exchange(m_port, "\xff\xfe not text\r\n\r\n"), QByteArray());
        const QStringList lines =
            console.lines().filter(QRegularExpression("^\\[PairingListener\\]"));
        const QString prefix = "[PairingListener] New connection from 127.0.0.1:";
        QVERIFY(lines.value(0).startsWith(prefix));
        QCOMPARE(lines.mid(1),
                 (QStringList { "[PairingListener] Connection state: ready",
                                "[PairingListener] No data received, cancelling",
                                "[PairingListener] Connection state: cancelled" }));
        QVERIFY(exchange(m_port, "GET /elsewhere HTTP/1.1\r\n\r\n")
                    .startsWith("HTTP/1.1 404 Not Found"));

        // A phone that resets the connection before sending anything.
        QTcpSocket phone;
        phone.setProxy(QNetworkProxy::NoProxy);
        phone.connectToHost(QHostAddress::LocalHost, m_port);
        QVERIFY(phone.waitForConnected(5000));
        const auto accepted = [&] {
            return console.lines().filter("New connection from 127.0.0.1").size() == 3;
        };
        QTRY_VERIFY(accepted());
        const linger reset { 1, 0 };
        ::setsockopt(int(phone.socketDescriptor()), SOL_SOCKET, SO_LINGER, &reset, sizeof reset);
        phone.abort();
        QTRY_VERIFY2(
            console.lines().contains("[PairingListener] Receive error: Connection reset by peer"),
            qPrintable(console.lines().join('\n')));
    }

    // The listener stands on its own: a session to judge against and a key installer.
    void pairsWithASessionAndAKeyInstallerAlone()
    {
        PairingSession session;
        QStringList installed;
        PairingListener listener({ &session });
        listener.onPairingRequest = [&](const PairingResult &result) {
            installed.append(result.publicKey);
            return true;
        };
        listener.start(0, false);
        const quint16 port = listener.port();
        const QByteArray key = testsupport::ed25519Key();
        const auto pair = [&](const QString &token) {
            return testsupport::replyBody(
                exchange(port, "POST /pair?token=" + token.toLatin1() + " HTTP/1.1\r\n\r\n" + key));
        };
        QCOMPARE(pair(session.token()), "Pairing mode not active");
        session.switchOn();
        QCOMPARE(pair(session.token() == "000000" ? "000001" : "000000"), "Invalid Token");
        QCOMPARE(pair(session.token()), "Paired Successfully");
        QCOMPARE(installed, QStringList { key });
    }

    void printsStartOfEveryRequest()
    {
        testsupport::ConsoleCapture console;
        const QByteArray shortRequest = "GET /x HTTP/1.1\r\nHost: a\r\n\r\n";
        exchange(m_port, shortRequest);
        QVERIFY(console.lines().contains("[PairingListener] Received request: " + shortRequest
                                         + "..."));
        const QByteArray longRequest = "GET /" + QByteArray(300, 'a') + " HTTP/1.1\r\n\r\n";
        exchange(m_port, longRequest);
        QVERIFY(console.lines().contains(
            "[PairingListener] Received request: " + longRequest.left(100) + "..."));
    }

    void startFailsOnTakenPort()
    {
        testsupport::ConsoleCapture console;
        PairingListener second({});
        second.start(m_port, false);
        QVERIFY(!second.isListening());
        QCOMPARE(second.port(), m_port);
        QVERIFY(console.lines().value(0).startsWith("Failed to start PairingListener: "));
    }

    void servesManyConnectionsAndBoundsEachAddress()
    {
        // Eight source addresses with four connections each: the listener's whole capacity.
        std::vector<std::unique_ptr<QTcpSocket>> sockets;
        for (int i = 0; i < PairingListener::maxConnections; ++i) {
            auto socket = std::make_unique<QTcpSocket>();
            socket->setProxy(QNetworkProxy::NoProxy);
            socket->bind(QHostAddress(QStringLiteral("127.0.0.%1").arg(2 + i / 4)));
            socket->connectToHost(QHostAddress::LocalHost, m_port);
            sockets.push_back(std::move(socket));
        }
        for (auto &socket : sockets)
            QTRY_COMPARE(socket->state(), QAbstractSocket::ConnectedState);
        // A fifth connection from a busy address is closed without a reply.
        QCOMPARE(exchange(m_port, "GET /x HTTP/1.1\r\n\r\n", QHostAddress("127.0.0.2")),
                 QByteArray());
        for (auto &socket : sockets)
            socket->write("GET /x HTTP/1.1\r\n\r\n");
        for (auto &socket : sockets) {
            QTRY_VERIFY(socket->bytesAvailable() > 0
                        || socket->state() != QAbstractSocket::ConnectedState);
            QVERIFY(socket->readAll().startsWith("HTTP/1.1 404"));
        }
        // Closed connections free their places.
        QTRY_VERIFY(exchange(m_port, "GET /x HTTP/1.1\r\n\r\n", QHostAddress("127.0.0.2"))
                        .startsWith("HTTP/1.1"));
    }

    void advertisesThroughTheSystemDaemonUntilStopped()
    {
        testsupport::DnsSdDaemon daemon;
        if (const QString reason = daemon.ensureRunning(); !reason.isEmpty())
            QSKIP(qPrintable("DNS-SD not testable here: " + reason));
        PairingListener listener({});
        QSignalSpy advertised(&listener, &PairingListener::advertised);
        listener.start(0);
        const quint16 port = listener.port();
        QVERIFY(advertised.wait(10000));
        const QString name = advertised.at(0).at(0).toString();
        QVERIFY(name.startsWith("QuivraMac-" + net::hostLabel()));
        const QString expected = ";" + name + ";_quivra-terminal._tcp;local;";
        const auto listed = [&] {
            const QStringList lines = testsupport::DnsSdDaemon::browse("_quivra-terminal._tcp");
            return std::any_of(lines.begin(), lines.end(), [&](const QString &line) {
                return line.contains(expected) && line.endsWith(QStringLiteral(";%1;").arg(port));
            });
        };
        QTRY_VERIFY_WITH_TIMEOUT(listed(), 15000);
        listener.stop();
        QTRY_VERIFY_WITH_TIMEOUT(!listed(), 15000);
    }
};

QUIVRA_TEST_MAIN(TestPairingListener)
#include "tst_pairinglistener.moc"
