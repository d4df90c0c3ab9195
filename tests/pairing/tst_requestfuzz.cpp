#include "pairing/pairinglistener.h"
#include "pairingfixture.h"
#include "phoneclient.h"

#include <QRandomGenerator>
#include <QRegularExpression>

using namespace testsupport;

namespace {

// Random damage to a request: the kinds of input a broken or hostile client sends.
QByteArray mutate(QByteArray input, QRandomGenerator &random)
{
    static const QList<QByteArray> fragments {
        "\r\n",         "\r\n\r\n",          "token=",       "&",  "/pair",
        "GET /status",  "Content-Length: ",  "99999999999",  "-1", "\xff\xfe",
        "\xe2\x80\xae", QByteArray(1, '\0'), "Origin: x\r\n"
    };
    const int edits = 1 + random.bounded(6);
    for (int i = 0; i < edits; ++i) {
        const int at = input.isEmpty() ? 0 : random.bounded(int(input.size()));
        switch (random.bounded(5)) {
        case 0: // flip a byte
            if (!input.isEmpty())
                input[at] = char(random.bounded(256));
            break;
        case 1: // cut a range
            input.remove(at, random.bounded(64));
            break;
        case 2: // repeat a range
            input.insert(at, input.mid(at, random.bounded(512)));
            break;
        case 3:
            input.insert(at, fragments[random.bounded(int(fragments.size()))]);
            break;
        default: // random bytes
            for (int n = random.bounded(32); n > 0; --n)
                input.insert(at, char(random.bounded(256)));
        }
    }
    return input.left(6000);
}

// Exactly one complete reply of the two forms the listener sends.
bool wellFormed(const QByteArray &reply)
{
    static const QRegularExpression form(
        "^HTTP/1\\.1 [0-9]{3} [A-Za-z ]+\r\nContent-Type: (text/plain|application/json)\r\n"
        "Content-Length: ([0-9]+)\r\n(Access-Control-Allow-Origin: \\*\r\n)?Connection: "
        "close\r\n\r\n");
    const QRegularExpressionMatch match = form.match(QString::fromLatin1(reply));
    return match.hasMatch()
        && reply.size() - match.capturedLength() == match.captured(2).toLongLong();
}

// The listener closes without a word only where it has no request to answer: nothing arrived,
// or what it reads (up to its limit) is not UTF-8. Every other input gets its reply.
bool answeredAsItShould(const QByteArray &input, const QByteArray &reply)
{
    const QByteArray read = input.left(PairingConnection::maxRequestBytes);
    if (read.isEmpty() || !QByteArrayView(read).isValidUtf8())
        return reply.isEmpty();
    return wellFormed(reply);
}
} // namespace

class TestRequestFuzz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyReadableInputGetsOneWellFormedReply()
    {
        const int iterations = qEnvironmentVariableIntValue("QUIVRA_FUZZ_ITERATIONS") > 0
            ? qEnvironmentVariableIntValue("QUIVRA_FUZZ_ITERATIONS")
            : 1200;
        QRandomGenerator &random = testsupport::random();
        PairingFixture fixture;
        const QList<QHostAddress> sources = loopbackSources(8);
        constexpr int batch = 32;
        for (int done = 0; done < iterations; done += batch) {
            // Incomplete requests are answered when their time is up: keep that short here.
            fixture.manager().phones().listener().setReadDeadline(std::chrono::milliseconds(150));
            const QString code = fixture.startPairing();
            const QList<QByteArray> seeds { PairingFixture::pairRequest(code, ed25519Key()),
                                            "GET /status HTTP/1.1\r\nHost: studio.local\r\n\r\n",
                                            "POST /pair?token=" + code.toLatin1() + " HTTP/1.1\r\n",
                                            QByteArray() };
            QList<QByteArray> inputs;
            for (int i = 0; i < batch; ++i)
                inputs.append(mutate(seeds[random.bounded(int(seeds.size()))], random));
            const QList<QByteArray> replies = exchangeAll(fixture.port(), inputs, sources);
            for (qsizetype i = 0; i < inputs.size(); ++i)
                QVERIFY2(
                    answeredAsItShould(inputs[i], replies[i]),
                    QByteArray("input " + inputs[i].toBase64() + " got " + replies[i].toBase64())
                        .constData());
        }
    }
};

QUIVRA_TEST_MAIN(TestRequestFuzz)
#include "tst_requestfuzz.moc"
