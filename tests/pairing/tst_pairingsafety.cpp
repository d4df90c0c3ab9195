#include "pairingfixture.h"
#include "phoneclient.h"

#include <QDir>
#include <QElapsedTimer>
#include <QNetworkProxy>
#include <QTcpSocket>

using namespace testsupport;

namespace {
const QByteArray ok = "Paired Successfully";
const QByteArray notActive = "Pairing mode not active";
const QByteArray invalidToken = "Invalid Token";
const QByteArray invalidKey = "Invalid Key Format";
const QByteArray tooMany = "Too many wrong codes";
} // namespace

class TestPairingSafety : public QObject
{
    Q_OBJECT

    std::unique_ptr<PairingFixture> m_fixture;
    QString m_code;

    QByteArray pair(const QByteArray &request)
    {
        return replyBody(exchange(m_fixture->port(), request));
    }
    QByteArray pairWith(const QByteArray &key, const QByteArray &headers = "")
    {
        return pair(PairingFixture::pairRequest(m_code, key, headers));
    }
    // A different code than the current one.
    QString wrongCode() const { return m_code == "000000" ? "000001" : "000000"; }

private Q_SLOTS:
    void init()
    {
        QDir(QDir::homePath() + "/.ssh").removeRecursively();
        m_fixture = std::make_unique<PairingFixture>();
        m_code = m_fixture->startPairing();
    }
    void cleanup() { m_fixture.reset(); }

    // The right code among hundreds of wrong ones is no match.
    void lookalikeTokensFail()
    {
        QByteArray manyTokens = "POST /pair?";
        for (int i = 0; i < 250; ++i)
            manyTokens += "token=" + QByteArray::number(100000 + i) + "&";
        manyTokens += "token=" + m_code.toLatin1() + " HTTP/1.1\r\n\r\n" + ed25519Key();
        QCOMPARE(pair(manyTokens), invalidToken);
        QCOMPARE(m_fixture->keysFile(), "<absent>");
    }

    // A loop of wrong codes from one address: after its third it is ignored, and the phone at
    // another address pairs all the same. The person at the screen learns where it comes from.
    void oneGuesserCannotKeepAPhoneFromPairing()
    {
        const QHostAddress guesser("127.0.0.2");
        QList<QByteArray> replies;
        for (int i = 0; i < 12; ++i)
            replies.append(replyBody(
                exchange(m_fixture->port(), PairingFixture::pairRequest(wrongCode(), ed25519Key()),
                         guesser)));
        // Its later guesses are not compared: not even the right code gets through from there.
        replies.append(replyBody(exchange(
            m_fixture->port(), PairingFixture::pairRequest(m_code, ed25519Key()), guesser)));
        QCOMPARE(replies.count(invalidToken), PairingSession::maxFailedAttemptsPerAddress);
        QCOMPARE(replies.count(tooMany),
                 replies.size() - PairingSession::maxFailedAttemptsPerAddress);
        QCOMPARE(m_fixture->manager().pairingGuessers(), QStringList { "127.0.0.2" });

        const QByteArray phone =
            exchange(m_fixture->port(), PairingFixture::pairRequest(m_code, ed25519Key()),
                     QHostAddress("127.0.0.3"));
        QCOMPARE(replyBody(phone), ok);
        QCOMPARE(m_fixture->manager().phones().devices().devices().constFirst().address,
                 "127.0.0.3");
        // A fresh code forgives.
        m_code = m_fixture->startPairing();
        QVERIFY(m_fixture->manager().pairingGuessers().isEmpty());
        QCOMPARE(replyBody(exchange(m_fixture->port(),
                                    PairingFixture::pairRequest(m_code, ed25519Key()), guesser)),
                 ok);
    }

    // Many senders together get ten guesses at one code, then pairing stops.
    void simultaneousGuessesAreAllCounted()
    {
        const QList<QByteArray> requests(100,
                                         PairingFixture::pairRequest(wrongCode(), ed25519Key()));
        const QList<QByteArray> replies =
            exchangeAll(m_fixture->port(), requests, loopbackSources(25));
        int judged = 0, refused = 0;
        for (const QByteArray &reply : replies) {
            const QByteArray body = replyBody(reply);
            judged += body == invalidToken;
            refused += body == notActive || body == tooMany || reply.isEmpty();
        }
        // Connections beyond the listener's bounds are closed unanswered: they guess nothing.
        QCOMPARE(judged, PairingSession::maxFailedAttempts);
        QCOMPARE(judged + refused, 100);
        QVERIFY(!m_fixture->manager().isPairing());
        QVERIFY(m_fixture->manager().pairingGuessers().size() >= 4);
        QCOMPARE(pairWith(ed25519Key()), notActive);
    }

    void codeExpiresAfterFiveMinutes()
    {
        m_fixture->advanceClock(std::chrono::seconds(299));
        QCOMPARE(pairWith("nonsense"), invalidKey); // still on
        m_fixture->advanceClock(std::chrono::seconds(2));
        QCOMPARE(pairWith(ed25519Key()), notActive);
        QVERIFY(!m_fixture->manager().isPairing());
        QCOMPARE(m_fixture->keysFile(), "<absent>");
        // Renewal gives a new code with a new lifetime.
        m_code = m_fixture->startPairing();
        m_fixture->advanceClock(std::chrono::seconds(299));
        QCOMPARE(pairWith(ed25519Key()), ok);
    }

    void oneCodePairsOnePhone()
    {
        QList<QByteArray> requests;
        for (int i = 0; i < 50; ++i)
            requests.append(PairingFixture::pairRequest(m_code, ed25519Key()));
        const QList<QByteArray> replies =
            exchangeAll(m_fixture->port(), requests, loopbackSources(50));
        QCOMPARE(std::count_if(replies.begin(), replies.end(),
                               [](const QByteArray &r) { return replyBody(r) == ok; }),
                 1);
        QCOMPARE(m_fixture->keysFile().count("# Quivra Terminal - Added on"), 1);
    }

    void webPagesCannotPairOrReadTheStatus_data()
    {
        QTest::addColumn<QByteArray>("headers");
        QTest::newRow("origin") << QByteArray("Origin: https://evil.example\r\n");
        QTest::newRow("cross-site") << QByteArray("Sec-Fetch-Site: cross-site\r\n"
                                                  "Sec-Fetch-Mode: no-cors\r\n");
        QTest::newRow("rebound host") << QByteArray("Host: evil.example:8080\r\n");
    }
    void webPagesCannotPairOrReadTheStatus()
    {
        QFETCH(QByteArray, headers);
        const quint16 port = m_fixture->port();
        QByteArray request = PairingFixture::pairRequest(m_code, ed25519Key());
        request.replace("Host: studio.local:8080\r\n", headers);
        const QByteArray status = "GET /status HTTP/1.1\r\n" + headers + "\r\n";
        const QByteArray refused = "HTTP/1.1 403 Forbidden\r\nContent-Type: text/plain\r\n"
                                   "Content-Length: 9\r\nConnection: close\r\n\r\nForbidden";
        // No code is compared, so none of them counts against the phone's.
        for (int i = 0; i < PairingSession::maxFailedAttempts; ++i) {
            QCOMPARE(exchange(port, request), refused);
            QCOMPARE(exchange(port, status), refused);
        }
        QCOMPARE(m_fixture->keysFile(), "<absent>");
        QVERIFY(m_fixture->manager().pairingGuessers().isEmpty());
        QCOMPARE(pairWith(ed25519Key()), ok);
    }

    void phonesPairByAnyOfOurNames_data()
    {
        QTest::addColumn<QByteArray>("host");
        QTest::newRow("v4") << QByteArray("Host: 192.168.1.20:8080\r\n");
        QTest::newRow("v6") << QByteArray("Host: [::1]:8080\r\n");
        QTest::newRow("localhost") << QByteArray("host: LOCALHOST\r\n");
        QTest::newRow("renamed") << QByteArray("Host: Studio-2.local.:8080\r\n");
        QTest::newRow("tailscale") << QByteArray("Host: studio.tail1a2b.ts.net\r\n");
        QTest::newRow("typed address")
            << QByteArray("Host: studio.local\r\nSec-Fetch-Site: none\r\n"
                          "Sec-Fetch-Mode: navigate\r\n");
        QTest::newRow("absent") << QByteArray();
    }
    void phonesPairByAnyOfOurNames()
    {
        QFETCH(QByteArray, host);
        QByteArray request = PairingFixture::pairRequest(m_code, ed25519Key());
        request.replace("Host: studio.local:8080\r\n", host);
        QCOMPARE(pair(request), ok);
    }

    void onlyWellFormedKeysAreInstalled()
    {
        const QByteArray good = ed25519Key();
        const QByteArray goodBlob = good.split(' ').at(1);
        const QByteArray rsaBlob = rsaKey(2048).split(' ').at(1);
        const QList<QByteArray> refused {
            good + "\ncommand=\"x\" " + ed25519Key(),
            "ssh-rsa",
            "ssh-ed25519 AAAA!!!!",
            "ssh-rsa " + goodBlob,
            "ssh-ed25519 " + rsaBlob,
            rsaKey(1024),
            rsaKey(16400), // more than sshd reads
            "ssh-ed25519 " + goodBlob + " phone\rcommand=x",
            "ssh-ed25519 " + goodBlob + " " + QByteArray(257, 'c'),
            "ssh-ed25519 " + QByteArray(QByteArray::fromBase64(goodBlob) + "trailing").toBase64(),
            // Forms sshd reads, but not the one a phone sends, which every reader agrees on.
            "ssh-ed25519\t" + goodBlob,
            "ssh-ed25519  " + goodBlob,
        };
        for (const QByteArray &key : refused)
            QVERIFY2(pairWith(key) == invalidKey, key.constData());
        QCOMPARE(m_fixture->keysFile(), "<absent>");
        QVERIFY(m_fixture->manager().isPairing()); // a right code with a bad key is no guess
        QCOMPARE(pairWith(rsaKey(3072, "rsa@phone")), ok);
    }

    void sameKeyTwiceIsStoredOnce()
    {
        const QByteArray key = ed25519Key();
        QCOMPARE(pairWith(key), ok);
        const QByteArray stored = m_fixture->keysFile();
        m_code = m_fixture->startPairing();
        QCOMPARE(pairWith(key.left(key.lastIndexOf(' ')) + " renamed"), ok);
        QCOMPARE(m_fixture->keysFile(), stored);
    }

    void symlinkedKeysFileIsRefused()
    {
        QTemporaryDir shared;
        QFile::setPermissions(shared.path(), QFileDevice::Permissions(0x7777));
        QDir().mkpath(QDir::homePath() + "/.ssh");
        QFile::setPermissions(QDir::homePath() + "/.ssh",
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QVERIFY(QFile::link(shared.filePath("keys"), m_fixture->keysPath()));
        QCOMPARE(pairWith(ed25519Key()), "Server not ready");
        QVERIFY(!QFile::exists(shared.filePath("keys")));
        QVERIFY(m_fixture->manager().isPairing());
    }

    void keySentAfterHeadersStillPairs()
    {
        const QByteArray request = PairingFixture::pairRequest(m_code, ed25519Key());
        const qsizetype split = request.indexOf("\r\n\r\n") + 4;
        QTcpSocket socket;
        socket.setProxy(QNetworkProxy::NoProxy);
        socket.connectToHost(QHostAddress::LocalHost, m_fixture->port());
        QVERIFY(socket.waitForConnected());
        socket.write(request.left(split));
        QTest::qWait(200); // the gap between the phone's two packets is the scenario itself
        socket.write(request.mid(split));
        QTRY_VERIFY(socket.state() == QAbstractSocket::UnconnectedState);
        QCOMPARE(replyBody(socket.readAll()), ok);
    }

    void idleSocketsDoNotKeepThePhoneOut()
    {
        testsupport::ConsoleCapture console;
        std::vector<std::unique_ptr<QTcpSocket>> idle;
        const QList<QHostAddress> sources = loopbackSources(125);
        for (int i = 0; i < 500; ++i) {
            idle.push_back(std::make_unique<QTcpSocket>());
            idle.back()->setProxy(QNetworkProxy::NoProxy);
            idle.back()->bind(sources[i % sources.size()]);
            idle.back()->connectToHost(QHostAddress::LocalHost, m_fixture->port());
        }
        // The phone comes once the listener is full of idle sockets.
        QTRY_VERIFY(console.lines().filter("[PairingListener] New connection from").size()
                    >= PairingListener::maxConnections);
        QCOMPARE(pairWith(ed25519Key()), ok);
        // Each silent one it accepted is closed at its read deadline. (The listener stays after
        // a pairing, so those the system still holds back are accepted, and closed, in turn.)
        std::vector<QTcpSocket *> accepted;
        for (const auto &socket : idle) {
            if (socket->state() == QAbstractSocket::ConnectedState)
                accepted.push_back(socket.get());
        }
        QVERIFY(!accepted.empty());
        QTRY_VERIFY_WITH_TIMEOUT(std::all_of(accepted.begin(), accepted.end(),
                                             [](const QTcpSocket *s) {
                                                 return s->state()
                                                     == QAbstractSocket::UnconnectedState;
                                             }),
                                 7000);
    }

    void statusFloodProbesSshOncePerTwoSeconds()
    {
        QElapsedTimer elapsed;
        elapsed.start();
        const QList<QByteArray> replies =
            exchangeAll(m_fixture->port(), QList<QByteArray>(200, "GET /status HTTP/1.1\r\n\r\n"),
                        loopbackSources(50));
        const qint64 took = elapsed.elapsed();
        const auto answered =
            std::count_if(replies.begin(), replies.end(), [](const QByteArray &r) {
                return r.startsWith("HTTP/1.1 200 OK") || r.startsWith("HTTP/1.1 503");
            });
        QVERIFY(answered >= 4);
        // One probe per reuse period of the time it took, however many reports wanted one.
        QVERIFY(m_fixture->sshConnections() <= 1 + took / 2000);
    }
};

QUIVRA_TEST_MAIN(TestPairingSafety)
#include "tst_pairingsafety.moc"
