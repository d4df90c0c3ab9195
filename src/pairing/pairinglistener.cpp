#include "pairing/pairinglistener.h"

#include "net/hostlabel.h"
#include "pairing/pairingconnection.h"
#include "platform/console.h"
#include "server/servermanager.h"

#include <QTcpSocket>

PairingListener::PairingListener(ServerManager *owner)
    : m_serverManager(owner)
{
    connect(&m_server, &QTcpServer::newConnection, this, &PairingListener::acceptConnections);
    connect(&m_advertiser, &platform::DnsSdAdvertiser::registered, this,
            [this](const QString &name) {
                console::line(QStringLiteral("PairingListener registered as: ") + name);
                Q_EMIT advertised(name);
            });
    connect(&m_advertiser, &platform::DnsSdAdvertiser::failed, this, [](const QString &error) {
        console::line(QStringLiteral("PairingListener advertisement failed: ") + error);
    });
}

ServerManager *PairingListener::serverManager() const
{
    return m_serverManager;
}

PairingListener::~PairingListener()
{
    stop();
}

void PairingListener::start(quint16 port, bool advertise)
{
    m_port = port;
    // QTcpServer sets SO_REUSEADDR, so a restart can bind at once after an earlier listener.
    if (!m_server.listen(QHostAddress::Any, port)
        && !m_server.listen(QHostAddress::AnyIPv4, port)) {
        console::line(QStringLiteral("Failed to start PairingListener: ") + m_server.errorString());
        return;
    }
    const QString name = QStringLiteral("QuivraMac-") + net::hostLabel();
    if (advertise && !m_advertiser.advertise(name, QStringLiteral("_quivra-terminal._tcp"), port)) {
        console::line(QStringLiteral("PairingListener not advertised (%1); phones must be given "
                                     "this computer's address by hand")
                          .arg(m_advertiser.errorString()));
    }
    console::line(QStringLiteral("PairingListener started on port %1").arg(port));
    // Readiness is reported after the start line, as the listener's state changes arrive later.
    QMetaObject::invokeMethod(
        this,
        [this, name] {
            if (!m_server.isListening())
                return;
            console::line(QStringLiteral("PairingListener State: ready"));
            console::line(QStringLiteral("PairingListener advertising as: ") + name);
        },
        Qt::QueuedConnection);
}

void PairingListener::stop()
{
    if (!m_server.isListening())
        return;
    m_advertiser.withdraw();
    m_server.close();
    console::line(QStringLiteral("PairingListener State: cancelled"));
}

void PairingListener::acceptConnections()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        auto *connection = new PairingConnection(socket);
        const QString address = connection->peerAddress();
        console::line(QStringLiteral("[PairingListener] New connection from ")
                      + connection->peer());
        console::line(QStringLiteral("[PairingListener] Connection state: ready"));
        // Bounded so that a flood of idle sockets from one machine cannot starve the others.
        if (m_connections >= maxConnections
            || m_connectionsPerAddress.value(address) >= maxConnectionsPerAddress) {
            connection->close();
            continue;
        }
        ++m_connections;
        ++m_connectionsPerAddress[address];
        connect(connection, &QObject::destroyed, this, [this, address] {
            --m_connections;
            if (--m_connectionsPerAddress[address] == 0)
                m_connectionsPerAddress.remove(address);
        });
        connect(connection, &PairingConnection::requestReceived, this,
                [this, connection](const QString &request) { handleRequest(request, connection); });
    }
}
