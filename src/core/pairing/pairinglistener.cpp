#include "pairing/pairinglistener.h"

#include "diagnostics/sshprobe.h"
#include "net/hostlabel.h"
#include "pairing/pairingconnection.h"
#include "platform/logging.h"

#include <QAbstractEventDispatcher>
#include <QTcpSocket>

#include <utility>

PairingListener::PairingListener(Setup setup, QObject *parent)
    : QObject(parent)
    , m_setup(std::move(setup))
    , m_sshProbe(std::make_shared<SshProbe>(m_setup.sshHost, m_setup.sshPort))
{
    // Past the first of a turn, taken on the loop's next turn rather than at once: QTcpServer
    // accepts for as long as connections keep arriving, which under a flood would hold the main
    // loop indefinitely. Left pending, they stop it at its limit of pending connections until
    // the next turn takes them. The first is served at once, which saves a phone a turn.
    if (auto *dispatcher = QAbstractEventDispatcher::instance())
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this,
                [this] { m_tookOneThisTurn = false; });
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        if (m_acceptScheduled)
            return;
        if (!std::exchange(m_tookOneThisTurn, true)) {
            adopt(m_server.nextPendingConnection());
            return;
        }
        m_acceptScheduled = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_acceptScheduled = false;
                acceptConnections();
            },
            Qt::QueuedConnection);
    });
    connect(&m_advertiser, &platform::DnsSdAdvertiser::registered, this,
            [this](const QString &name) {
                qCInfo(lcConsole).nospace().noquote()
                    << "PairingListener registered as: " << logging::oneLine(name);
                Q_EMIT advertised(name);
            });
    connect(&m_advertiser, &platform::DnsSdAdvertiser::failed, this, [](const QString &error) {
        qCInfo(lcConsole).nospace().noquote()
            << "PairingListener advertisement lost (" << error << "); registering again once "
            << "the DNS-SD daemon answers";
    });
}

PairingListener::~PairingListener()
{
    stop();
    // Requests still being answered (status reports waiting for their checks) get a reply.
    const QList<PairingConnection *> answering = m_connections;
    for (PairingConnection *connection : answering)
        connection->sendResponse(QStringLiteral("503 Service Unavailable"),
                                 QStringLiteral("Server not ready"));
}

void PairingListener::start(quint16 port, bool advertise)
{
    m_port = port;
    // QTcpServer sets SO_REUSEADDR, so a restart can bind at once after an earlier listener.
    if (!m_server.listen(QHostAddress::Any, port)
        && !m_server.listen(QHostAddress::AnyIPv4, port)) {
        qCInfo(lcConsole).nospace().noquote()
            << "Failed to start PairingListener: " << m_server.errorString();
        return;
    }
    m_port = m_server.serverPort(); // the one the system chose when asked for 0
    const QString name = QStringLiteral("QuivraMac-") + net::hostLabel();
    bool advertising = true;
    if (advertise
        && !m_advertiser.advertise(name, QStringLiteral("_quivra-terminal._tcp"), m_port)) {
        advertising = false;
        qCInfo(lcConsole).nospace().noquote()
            << QStringLiteral("PairingListener not advertised yet (%1); registering once the "
                              "DNS-SD daemon answers")
                   .arg(m_advertiser.errorString());
    }
    qCInfo(lcConsole).nospace().noquote()
        << QStringLiteral("PairingListener started on port %1").arg(m_port);
    // Readiness is reported after the start line, as the listener's state changes arrive later.
    QMetaObject::invokeMethod(
        this,
        [this, name, advertising] {
            if (!m_server.isListening())
                return;
            qCInfo(lcConsole).nospace().noquote() << "PairingListener State: ready";
            if (advertising)
                qCInfo(lcConsole).nospace().noquote() << "PairingListener advertising as: " << name;
        },
        Qt::QueuedConnection);
}

void PairingListener::stop()
{
    if (!m_server.isListening())
        return;
    m_advertiser.withdraw();
    m_server.close();
    // Connections whose request has not arrived would never be answered.
    const QList<PairingConnection *> open = m_connections;
    for (PairingConnection *connection : open) {
        if (connection->isReading())
            connection->close();
    }
    qCInfo(lcConsole).nospace().noquote() << "PairingListener State: cancelled";
}

void PairingListener::acceptConnections()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection())
        adopt(socket);
}

void PairingListener::adopt(QTcpSocket *socket)
{
    auto *connection = new PairingConnection(socket, m_readDeadline);
    const QString address = connection->peerAddress();
    qCInfo(lcConsole).nospace().noquote()
        << QStringLiteral("[PairingListener] New connection from ")
            + logging::oneLine(connection->peer());
    qCInfo(lcConsole).nospace().noquote() << "[PairingListener] Connection state: ready";
    if (!makeRoomFor(address)) {
        connection->close();
        return;
    }
    m_connections.append(connection);
    ++m_connectionsPerAddress[address];
    connect(connection, &PairingConnection::closed, this, [this, connection, address] {
        m_connections.removeOne(connection);
        if (--m_connectionsPerAddress[address] == 0)
            m_connectionsPerAddress.remove(address);
    });
    connect(connection, &PairingConnection::requestReceived, this,
            [this, connection](const QString &request) { handleRequest(request, connection); });
}

// Bounded, so that a flood of idle sockets cannot exhaust the process: one machine gets a few
// connections, and when all are taken the oldest one still silent makes way. A phone sends its
// request at once, so idle sockets from elsewhere cannot keep it out.
bool PairingListener::makeRoomFor(const QString &address)
{
    if (m_connectionsPerAddress.value(address) >= maxConnectionsPerAddress)
        return false;
    if (m_connections.size() < maxConnections)
        return true;
    const auto idle = std::find_if(m_connections.cbegin(), m_connections.cend(),
                                   [](const PairingConnection *c) { return c->isReading(); });
    if (idle == m_connections.cend())
        return false;
    (*idle)->close();
    return true;
}
