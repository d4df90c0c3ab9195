// The phone-facing request handling, bytes in, reply out: every input gets one well-formed reply
// and a close, or a close alone where the listener has nothing to read, and never a crash or a
// hang. A key reaches the key store only with the code in the request line, on a line of its own.
#include "fuzzsupport.h"
#include "pairing/pairinglistener.h"
#include "pairing/pairingsession.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QRegularExpression>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <memory>

using fuzzsupport::fail;

namespace {

// What the listener did with one connection.
struct Exchange
{
    QByteArray reply;
    int writes = 0;
    bool closed = false;
    bool writeAfterClose = false;
};

// A connected socket that holds its peer's bytes in memory and keeps what is written to it.
class ReplayedSocket : public QTcpSocket
{
public:
    ReplayedSocket(QByteArray input, std::shared_ptr<Exchange> exchange)
        : m_input(std::move(input))
        , m_exchange(std::move(exchange))
    {
        setPeerAddress(QHostAddress(QHostAddress::LocalHost));
        setPeerPort(50000);
        setSocketState(ConnectedState);
        setOpenMode(QIODevice::ReadWrite | QIODevice::Unbuffered);
    }
    ~ReplayedSocket() override { setSocketState(UnconnectedState); }

    void deliver() { Q_EMIT readyRead(); }
    qint64 bytesAvailable() const override { return m_input.size() - m_read; }
    void disconnectFromHost() override
    {
        m_exchange->closed = true;
        if (state() == UnconnectedState)
            return;
        setSocketState(UnconnectedState);
        Q_EMIT disconnected();
    }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const qint64 count = std::min(maxSize, bytesAvailable());
        std::copy_n(m_input.constData() + m_read, count, data);
        m_read += count;
        return count;
    }
    qint64 writeData(const char *data, qint64 size) override
    {
        if (m_exchange->closed)
            m_exchange->writeAfterClose = true;
        ++m_exchange->writes;
        m_exchange->reply.append(data, size);
        return size;
    }

private:
    QByteArray m_input;
    qint64 m_read = 0;
    std::shared_ptr<Exchange> m_exchange;
};

// The two forms the listener answers in, with a body of the declared length.
bool wellFormed(const QByteArray &reply)
{
    static const QRegularExpression form(
        QStringLiteral("^HTTP/1\\.1 (200 OK|400 Bad Request|401 Unauthorized|403 Forbidden|404 "
                       "Not Found|503 Service Unavailable)\r\nContent-Type: "
                       "(text/plain|application/json)\r\nContent-Length: ([0-9]+)\r\n"
                       "(Access-Control-Allow-Origin: \\*\r\n)?Connection: close\r\n\r\n"));
    const QRegularExpressionMatch match = form.match(QString::fromLatin1(reply));
    return match.hasMatch()
        && reply.size() - match.capturedLength(0) == match.captured(3).toLongLong();
}

struct Harness
{
    QTemporaryDir home;
    PairingSession session;
    std::unique_ptr<PairingListener> listener;
    QStringList storedKeys;

    Harness()
    {
        PairingListener::Setup setup;
        setup.session = &session;
        setup.serverRunning = [] { return std::optional(true); };
        setup.diagnostics = { [this] { return home.path(); },
                              [] { return QList<net::InterfaceAddress>(); }, [] { return false; },
                              [] { return QStringLiteral("someone"); },
                              [] { return QStringLiteral("studio"); } };
        setup.sshPort = 9; // refused at once on loopback: the status report never waits long
        listener = std::make_unique<PairingListener>(setup);
        // Anything the fuzzer does not send at once has arrived in full.
        listener->setReadDeadline(std::chrono::milliseconds(0));
        listener->onPairingRequest = [this](const PairingResult &result) {
            storedKeys.append(result.publicKey);
            return true;
        };
    }
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    fuzzsupport::initialize(argc, argv);
    return 0;
}

// "######" in an input stands for the code on screen, which the fuzzer cannot guess: it is
// replaced by the session's current one, so that inputs reach the key checks behind it.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static Harness harness;
    harness.session.switchOn(); // a fresh code and no failed attempts
    harness.storedKeys.clear();
    const QByteArray code = harness.session.token().toLatin1();
    const QByteArray input = fuzzsupport::bytes(data, size).replace("######", code);

    auto exchange = std::make_shared<Exchange>();
    auto *socket = new ReplayedSocket(input, exchange);
    harness.listener->adopt(socket);
    socket->deliver();
    const QDeadlineTimer deadline(2000);
    while (!exchange->closed && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    // What was closed is deleted on a later turn of the loop; leave nothing for the next input.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    if (!exchange->closed)
        fail("no reply and no close within 2 s", input);
    if (exchange->writes > 1 || exchange->writeAfterClose)
        fail("more than one reply, or one after the close", exchange->reply);
    // The listener reads at most its limit, and has nothing to answer when that is empty or not
    // UTF-8: a phone sends neither.
    const QByteArray read = input.left(PairingConnection::maxRequestBytes);
    const bool nothingToAnswer = read.isEmpty() || !QByteArrayView(read).isValidUtf8();
    if (nothingToAnswer && !exchange->reply.isEmpty())
        fail("a reply to an unreadable request", exchange->reply);
    if (!nothingToAnswer && !wellFormed(exchange->reply))
        fail("no well-formed reply", exchange->reply);

    const bool paired = exchange->reply.endsWith("\r\n\r\nPaired Successfully");
    if (paired != (harness.storedKeys.size() == 1) || harness.storedKeys.size() > 1)
        fail("the reply and the stored keys disagree", exchange->reply);
    if (paired) {
        const QString key = harness.storedKeys.constFirst();
        const QByteArray requestLine = read.left(read.indexOf("\r\n"));
        const QByteArray parameter = "token=" + code;
        if (!requestLine.contains(parameter))
            fail("a key stored without the code in the request line", requestLine);
        if (key.contains(u'\n') || key.contains(u'\r') || key.contains(QChar(0)))
            fail("a stored key that is more than one line", key.toUtf8());
    }
    return 0;
}
