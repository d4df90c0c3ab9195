#pragma once

#include "server/servermanager.h"
#include "testsupport.h"

#include <QTcpServer>

namespace testsupport {

// A running ServerManager with its pairing listener on a free port, the fake etserver, a fake
// SSH daemon that counts probe connections, a fixed machine description and a movable clock.
class PairingFixture
{
public:
    PairingFixture();
    ~PairingFixture();

    ServerManager &manager() { return *m_manager; }
    // The listener's.
    quint16 port() const;
    int sshConnections() const { return *m_sshConnections; }
    void closeSshDaemon() { m_sshd.close(); }
    void setInterfaces(const QList<net::InterfaceAddress> &addresses) { *m_interfaces = addresses; }
    // Moves the clock the pairing code's lifetime is measured with.
    void advanceClock(std::chrono::seconds by) { *m_offset += by; }
    // Switches pairing mode on with a fresh code and returns it.
    QString startPairing();

    QString keysPath() const;
    QByteArray keysFile() const;

    // A POST of the key to /pair?token=..., with extra header lines.
    static QByteArray pairRequest(const QString &token, const QByteArray &key,
                                  const QByteArray &headers = "X-Device-Name: Test Phone\r\n");

    static constexpr auto hostLabel = "studio";

private:
    QTcpServer m_sshd;
    std::shared_ptr<QList<net::InterfaceAddress>> m_interfaces =
        std::make_shared<QList<net::InterfaceAddress>>(QList<net::InterfaceAddress> {
            { "lo", true, "127.0.0.1" }, { "eth0", true, "192.168.1.20" } });
    std::shared_ptr<int> m_sshConnections = std::make_shared<int>(0);
    std::shared_ptr<std::chrono::seconds> m_offset = std::make_shared<std::chrono::seconds>(0);
    std::shared_ptr<GuardedProcessTable> m_processes = std::make_shared<GuardedProcessTable>();
    std::unique_ptr<ServerManager> m_manager;
};

// Well-formed public key lines with random key material.
QByteArray ed25519Key(const QByteArray &comment = "phone");
QByteArray rsaKey(int bits, const QByteArray &comment = "phone");

} // namespace testsupport
