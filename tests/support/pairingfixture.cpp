#include "pairingfixture.h"

#include <QDir>
#include <QTcpSocket>

namespace testsupport {

PairingFixture::PairingFixture()
{
    m_sshd.listen(QHostAddress::LocalHost, 0);
    QObject::connect(&m_sshd, &QTcpServer::newConnection, [this] {
        while (QTcpSocket *socket = m_sshd.nextPendingConnection()) {
            ++*m_sshConnections;
            socket->deleteLater();
        }
    });
    ServerEnvironment env = environment(m_processes);
    env.diagnostics = { QDir::homePath, [interfaces = m_interfaces] { return *interfaces; },
                        [] { return false; }, [] { return QStringLiteral("tester"); },
                        [] { return QString::fromLatin1(hostLabel); } };
    env.sshPort = m_sshd.serverPort();
    env.now = [offset = m_offset] { return std::chrono::system_clock::now() + *offset; };
    m_manager = std::make_unique<ServerManager>(std::move(env));
    m_manager->startServer();
    // The start follows the clean-up of servers an earlier run left behind.
    if (!QTest::qWaitFor([this] { return m_manager->isRunning(); }))
        QTest::qFail("the server did not start", __FILE__, __LINE__);
    m_processes->allow(m_manager->supervisor().pid());
    if (!m_manager->phones().isListening())
        QTest::qFail("the pairing listener did not start", __FILE__, __LINE__);
}

quint16 PairingFixture::port() const
{
    return m_manager->phones().port();
}

PairingFixture::~PairingFixture()
{
    m_manager->supervisor().stopForQuit();
}

QString PairingFixture::startPairing()
{
    if (m_manager->isPairing())
        m_manager->togglePairingMode();
    m_manager->togglePairingMode();
    return m_manager->pairingToken();
}

QString PairingFixture::keysPath() const
{
    return QDir::homePath() + QStringLiteral("/.ssh/authorized_keys");
}

QByteArray PairingFixture::keysFile() const
{
    QFile file(keysPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<absent>");
}

QByteArray PairingFixture::pairRequest(const QString &token, const QByteArray &key,
                                       const QByteArray &headers)
{
    return "POST /pair?token=" + token.toLatin1() + " HTTP/1.1\r\nHost: " + hostLabel
        + ".local:8080\r\n" + headers + "Content-Length: " + QByteArray::number(key.size())
        + "\r\n\r\n" + key;
}

namespace {

QByteArray wireString(const QByteArray &bytes)
{
    QByteArray length(4, 0);
    qToBigEndian(quint32(bytes.size()), length.data());
    return length + bytes;
}

QByteArray randomBytes(int count)
{
    QByteArray bytes(count, 0);
    for (char &b : bytes)
        b = char(random().generate());
    return bytes;
}

} // namespace

QByteArray ed25519Key(const QByteArray &comment)
{
    const QByteArray blob = wireString("ssh-ed25519") + wireString(randomBytes(32));
    return "ssh-ed25519 " + blob.toBase64()
        + (comment.isEmpty() ? QByteArray() : QByteArray(" ") + comment);
}

QByteArray rsaKey(int bits, const QByteArray &comment)
{
    QByteArray modulus = randomBytes(bits / 8);
    modulus[0] = char(modulus[0] | 0x80);
    const QByteArray blob = wireString("ssh-rsa") + wireString(QByteArray("\x01\x00\x01", 3))
        + wireString(QByteArray(1, '\0') + modulus);
    return "ssh-rsa " + blob.toBase64()
        + (comment.isEmpty() ? QByteArray() : QByteArray(" ") + comment);
}

} // namespace testsupport
