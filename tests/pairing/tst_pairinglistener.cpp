#include "dnssddaemon.h"
#include "net/hostlabel.h"
#include "pairing/pairinglistener.h"
#include "phoneclient.h"
#include "testsupport.h"

#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>

#include <sys/socket.h>

using testsupport::exchange;

namespace {

// A port that never completes a connection: its one place in the queue is taken, and nothing
// accepts. Connections to it wait until their own time-out.
struct SilentPort
{
    QTcpServer server;
    QTcpSocket filler;

    SilentPort()
    {
        server.setListenBacklogSize(0);
        server.setMaxPendingConnections(0);
        server.listen(QHostAddress::LocalHost);
        filler.setProxy(QNetworkProxy::NoProxy);
        filler.connectToHost(QHostAddress::LocalHost, server.serverPort());
        if (!filler.waitForConnected(5000))
            QTest::qFail("the silent port's queue could not be filled", __FILE__, __LINE__);
    }
    quint16 port() const { return server.serverPort(); }
};

} // namespace

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

    void keepsServingAfterBadBytesAndTellsResets()
    {
        testsupport::ConsoleCapture console;
        QCOMPARE(exchange(m_port, "\xff\xfe not text\r\n\r\n"), QByteArray());
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

    // What the journal records: one line per event, whatever a request carries.
    void consoleLinesCannotBeForged()
    {
        testsupport::ConsoleCapture console;
        const QByteArray forged = "GET /x\r\nPairing Success! Device: Evil HTTP/1.1\r\n\r\n";
        QVERIFY(exchange(m_port, forged).startsWith("HTTP/1.1 400 Bad Request"));
        QVERIFY(exchange(m_port, "GET /\x1b]0;owned\x07\u2028x HTTP/1.1\r\n\r\n")
                    .startsWith("HTTP/1.1 400"));
        const QByteArray longRequest = "GET /" + QByteArray(300, 'a') + " HTTP/1.1\r\n\r\n";
        exchange(m_port, longRequest);
        const QStringList lines = console.lines();
        QVERIFY(lines.filter(QRegularExpression("^Pairing Success!")).isEmpty());
        for (const QString &line : lines)
            QVERIFY2(!line.contains(QRegularExpression("[\\x00-\\x1f\\x7f\\x{2028}\\x{2029}]")),
                     qPrintable(line));
        QVERIFY(lines.contains(
            R"([PairingListener] Received request: GET /x\r\nPairing Success! Device: Evil HTTP/1.1\r\n\r\n...)"));
        QVERIFY(
            lines.contains("[PairingListener] Received request: " + longRequest.left(100) + "..."));
    }

    // A status report waits for the SSH probe, and this one never gets an answer: the requests
    // of one sender's burst stay in progress, and another sender still gets its report.
    void statusBurstLeavesOtherSendersTheirShare()
    {
        SilentPort sshd;
        PairingListener::Setup setup;
        setup.sshPort = sshd.port();
        PairingListener listener(setup);
        listener.start(0, false);
        testsupport::ConsoleCapture console;
        std::vector<std::unique_ptr<QTcpSocket>> burst;
        for (int i = 0; i < PairingListener::maxConnectionsPerAddress; ++i) {
            burst.push_back(std::make_unique<QTcpSocket>());
            QTcpSocket *socket = burst.back().get();
            socket->setProxy(QNetworkProxy::NoProxy);
            socket->bind(QHostAddress("127.0.0.2"));
            connect(socket, &QTcpSocket::connected, socket,
                    [socket] { socket->write("GET /status HTTP/1.1\r\n\r\n"); });
            socket->connectToHost(QHostAddress::LocalHost, listener.port());
        }
        QTRY_COMPARE(console.lines().filter("Received request: GET /status").size(),
                     qsizetype(burst.size()));
        QVERIFY(exchange(listener.port(), "GET /status HTTP/1.1\r\n\r\n", QHostAddress("127.0.0.3"))
                    .startsWith("HTTP/1.1 200 OK"));
    }

    // HTTP clients may close their sending side once the request is out; they still read.
    void halfClosedClientsGetTheirReply()
    {
        SilentPort sshd; // the report comes 2 s later, long after the end of the request
        PairingListener::Setup setup;
        setup.sshPort = sshd.port();
        PairingListener listener(setup);
        listener.start(0, false);
        const QList<std::pair<QByteArray, QByteArray>> cases {
            { "GET /status HTTP/1.1\r\n\r\n", "HTTP/1.1 200 OK" },
            { "GET /status HTTP/1.1\r\n", "HTTP/1.1 400 Bad Request" }, // ended by the close
            { "POST /pair HTTP/1.1\r\n\r\nkey", "HTTP/1.1 503 Service Unavailable" },
        };
        for (const auto &[request, expected] : cases) {
            QTcpSocket phone;
            phone.setProxy(QNetworkProxy::NoProxy);
            phone.connectToHost(QHostAddress::LocalHost, listener.port());
            QVERIFY(phone.waitForConnected(5000));
            phone.write(request);
            QVERIFY(phone.waitForBytesWritten(5000));
            ::shutdown(int(phone.socketDescriptor()), SHUT_WR);
            QByteArray reply;
            QTRY_VERIFY_WITH_TIMEOUT(
                (reply += phone.readAll(), phone.state() == QAbstractSocket::UnconnectedState),
                8000);
            QVERIFY2(reply.startsWith(expected), reply.constData());
        }
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
        PairingListener listener({});
        QSignalSpy advertised(&listener, &PairingListener::advertised);
        // Before the daemon where the test starts one (and its bus): the listener registers as
        // soon as it answers.
        listener.start(0);
        testsupport::DnsSdDaemon daemon;
        if (const QString reason = daemon.ensureRunning(); !reason.isEmpty())
            QSKIP(qPrintable("DNS-SD not testable here: " + reason));
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
