#pragma once

#include "diagnostics/checks.h"
#include "pairing/pairingconnection.h"
#include "pairing/pairingresult.h"
#include "pairing/pairingsession.h"
#include "platform/dnssdadvertiser.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTcpServer>

#include <functional>
#include <memory>

class SshProbe;

// The phone-facing TCP service on the pairing port, advertised by DNS-SD as
// "QuivraMac-{hostLabel}" of type _quivra-terminal._tcp. Each connection carries one request.
class PairingListener : public QObject
{
    Q_OBJECT

public:
    static constexpr int maxConnections = 32;
    static constexpr int maxConnectionsPerAddress = 4;
    // Status reports being worked out at once, in all and per sender: a phone asks one at a time.
    static constexpr int maxStatusRequestsInProgress = 16;
    static constexpr int maxStatusRequestsPerAddress = 2;

    // What a request is judged against and what the status report reads.
    struct Setup
    {
        QPointer<PairingSession> session {};
        ServerRunning serverRunning {};
        DiagnosticSystem diagnostics = DiagnosticSystem::real();
        QString sshHost = QStringLiteral("127.0.0.1");
        quint16 sshPort = 22;
    };

    explicit PairingListener(Setup setup, QObject *parent = nullptr);
    ~PairingListener() override;

    // Listens on all interfaces and, unless told otherwise, registers with the DNS-SD daemon.
    // Port 0 asks the system for a free one; port() then tells which.
    void start(quint16 port, bool advertise = true);
    void stop();
    bool isListening() const { return m_server.isListening(); }
    // Why the last start could not listen; start() may be called again to retry.
    QAbstractSocket::SocketError serverError() const { return m_server.serverError(); }
    QString errorString() const { return m_server.errorString(); }
    quint16 port() const { return m_port; }
    // How long a connection may take to send its request (tests shorten it).
    void setReadDeadline(std::chrono::milliseconds deadline) { m_readDeadline = deadline; }
    // Set by the owner before start(): called once per accepted pairing request, it stores the
    // key and answers whether it could. The phone hears of success only after that.
    std::function<bool(const PairingResult &result)> onPairingRequest;
    // Serves a connected socket as if this listener had accepted it. The fuzz target hands in
    // sockets that replay bytes from memory: its inputs meet the same reading, limits and
    // routing as a phone's, thousands a second and without a network.
    void adopt(QTcpSocket *socket);

Q_SIGNALS:
    // The name the DNS-SD daemon registered (tests and the log wait for it).
    void advertised(const QString &name);

private:
    void acceptConnections();
    bool makeRoomFor(const QString &address);
    void handleRequest(const QString &request, PairingConnection *connection);
    void handleStatusRequest(PairingConnection *connection);
    // Keeps a report for the status requests that follow in the same turn of the loop.
    void shareForThisTurn(const QByteArray &report);
    void handlePairRequest(const QString &requestLine, const QString &request,
                           PairingConnection *connection);

    QTcpServer m_server;
    bool m_acceptScheduled = false;
    bool m_tookOneThisTurn = false;
    platform::DnsSdAdvertiser m_advertiser;
    quint16 m_port = 8080;
    Setup m_setup;
    QHash<QString, int> m_connectionsPerAddress;
    // Open connections, oldest first.
    QList<PairingConnection *> m_connections;
    // Shared by all status requests, so that they share its verdict.
    std::shared_ptr<SshProbe> m_sshProbe;
    int m_statusRequestsInProgress = 0;
    // Empty from the loop's next turn on.
    QByteArray m_reportThisTurn;
    QHash<QString, int> m_statusRequestsPerAddress;
    std::chrono::milliseconds m_readDeadline = PairingConnection::defaultReadDeadline;
};
