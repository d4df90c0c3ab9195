#include "pairing/pairingconnection.h"

#include "platform/logging.h"

#include <QStringDecoder>
#include <QTcpSocket>

PairingConnection::PairingConnection(QTcpSocket *socket, std::chrono::milliseconds readDeadline)
    : m_socket(socket)
    , m_hold(socket->socketDescriptor())
    , m_readDeadline(readDeadline)
{
    m_socket->setParent(this);
    connect(m_socket, &QTcpSocket::readyRead, this, &PairingConnection::onReadyRead);
    // Qt closes the socket at the peer's end of stream. A peer that only closed its sending side
    // after its request still waits for the reply, which the held reference carries.
    connect(m_socket, &QTcpSocket::disconnected, this, [this] {
        if (m_reading && m_buffer.isEmpty() && m_hold.wasReset())
            receiveFailed(QStringLiteral("Connection reset by peer"));
        else if (m_reading)
            finishReading();
        else if (!m_hold.isHeld() || m_hold.wasReset())
            close();
    });
    connect(m_socket, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError error) {
        // The end of the stream arrives as an error too; what was read still counts.
        if (m_reading && error != QAbstractSocket::RemoteHostClosedError)
            receiveFailed(m_socket->errorString());
    });
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, &PairingConnection::finishReading);
    // A member, not a free single-shot timer: those outlive the connection until they fire, and
    // a flood would pile up thousands, each making every timer operation slower.
    m_lingerLimit.setSingleShot(true);
    connect(&m_lingerLimit, &QTimer::timeout, this, [this] {
        m_socket->abort();
        deleteLater();
    });
    m_deadline.start(m_readDeadline);
}

QString PairingConnection::peerAddress() const
{
    QHostAddress address = m_socket->peerAddress();
    bool mapped = false;
    const quint32 ipv4 = address.toIPv4Address(&mapped);
    return mapped ? QHostAddress(ipv4).toString() : address.toString();
}

QString PairingConnection::peer() const
{
    return peerAddress() + QLatin1Char(':') + QString::number(m_socket->peerPort());
}

void PairingConnection::onReadyRead()
{
    if (!m_reading) {
        m_socket->readAll(); // one request per connection; the rest is not ours to read
        return;
    }
    m_buffer += m_socket->read(maxRequestBytes - m_buffer.size());
    if (requestComplete())
        finishReading();
}

// Headers and any declared body are in, or the size limit is reached: a phone's networking
// library may send headers and body in separate packets.
bool PairingConnection::requestComplete() const
{
    if (m_buffer.size() >= maxRequestBytes)
        return true;
    const qsizetype headerEnd = m_buffer.indexOf("\r\n\r\n");
    if (headerEnd < 0)
        return false;
    qsizetype bodyLength = 0;
    const QList<QByteArray> lines = m_buffer.left(headerEnd).split('\n');
    for (const QByteArray &line : lines) {
        if (line.trimmed().toLower().startsWith("content-length:"))
            bodyLength = line.mid(line.indexOf(':') + 1).trimmed().toLongLong();
    }
    return m_buffer.size() >= headerEnd + 4 + bodyLength;
}

void PairingConnection::receiveFailed(const QString &error)
{
    qCInfo(lcConsole).nospace().noquote() << "[PairingListener] Receive error: " << error;
    close();
}

void PairingConnection::finishReading()
{
    if (!m_reading)
        return;
    m_reading = false;
    m_deadline.stop();
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString request = decoder.decode(m_buffer);
    if (m_buffer.isEmpty() || decoder.hasError()) {
        qCInfo(lcConsole).nospace().noquote() << "[PairingListener] No data received, cancelling";
        close();
        return;
    }
    qCInfo(lcConsole).nospace().noquote() << QStringLiteral("[PairingListener] Received request: ")
            + logging::oneLine(request.left(100)) + QStringLiteral("...");
    Q_EMIT requestReceived(request);
}

void PairingConnection::sendResponse(const QString &status, const QString &body)
{
    const QByteArray bytes = body.toUtf8();
    send("HTTP/1.1 " + status.toUtf8() + "\r\nContent-Type: text/plain\r\nContent-Length: "
         + QByteArray::number(bytes.size()) + "\r\nConnection: close\r\n\r\n" + bytes);
}

void PairingConnection::sendJSONResponse(const QByteArray &json)
{
    send("HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nContent-Length: "
         + QByteArray::number(json.size())
         + "\r\nAccess-Control-Allow-Origin: *\r\nConnection: close\r\n\r\n" + json);
}

void PairingConnection::send(const QByteArray &reply)
{
    if (m_closed)
        return;
    if (m_socket->state() != QAbstractSocket::ConnectedState) {
        if (QTcpSocket *replying = m_hold.takeForReply(this))
            m_socket = replying;
    }
    if (m_socket->state() == QAbstractSocket::ConnectedState) {
        m_socket->write(reply);
        // Sent now as far as the socket takes it, without waiting: otherwise it would go out on
        // the loop's next turn, and the connection close on the one after.
        m_socket->flush();
    }
    close();
}

void PairingConnection::close()
{
    if (m_closed)
        return;
    m_closed = true;
    m_reading = false;
    m_hold.release(); // else the connection would outlive Qt's close
    m_deadline.stop();
    qCInfo(lcConsole).nospace().noquote() << "[PairingListener] Connection state: cancelled";
    Q_EMIT closed();
    // disconnectFromHost() writes what is pending first.
    connect(m_socket, &QTcpSocket::disconnected, this, &QObject::deleteLater);
    m_socket->disconnectFromHost();
    if (m_socket->state() == QAbstractSocket::UnconnectedState)
        deleteLater();
    else // a phone that stops reading must not hold the connection open
        m_lingerLimit.start(m_readDeadline);
}
