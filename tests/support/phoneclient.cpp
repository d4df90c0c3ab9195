#include "phoneclient.h"

#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTest>

#include <memory>
#include <vector>

namespace testsupport {

QByteArray exchange(quint16 port, const QByteArray &request, const QHostAddress &from)
{
    return exchangeAll(port, { request }, { from }).value(0);
}

QList<QByteArray> exchangeAll(quint16 port, const QList<QByteArray> &requests,
                              const QList<QHostAddress> &sources)
{
    struct Client
    {
        QTcpSocket socket;
        QByteArray reply;
    };
    std::vector<std::unique_ptr<Client>> clients;
    for (qsizetype i = 0; i < requests.size(); ++i) {
        auto client = std::make_unique<Client>();
        Client *c = client.get();
        c->socket.setProxy(QNetworkProxy::NoProxy);
        QObject::connect(&c->socket, &QTcpSocket::readyRead,
                         [c] { c->reply += c->socket.readAll(); });
        QObject::connect(&c->socket, &QTcpSocket::connected,
                         [c, request = requests[i]] { c->socket.write(request); });
        c->socket.bind(sources[i % sources.size()]);
        c->socket.connectToHost(QHostAddress::LocalHost, port);
        clients.push_back(std::move(client));
    }
    const auto allClosed = [&] {
        return std::all_of(clients.begin(), clients.end(), [](const auto &c) {
            return c->socket.state() == QAbstractSocket::UnconnectedState;
        });
    };
    if (!QTest::qWaitFor(allClosed, 10000))
        QTest::qFail("connections still open after 10 s", __FILE__, __LINE__);
    QList<QByteArray> replies;
    for (const auto &c : clients)
        replies.append(c->socket.state() == QAbstractSocket::UnconnectedState
                           ? c->reply
                           : QByteArray("<still open>"));
    return replies;
}

QList<QHostAddress> loopbackSources(int count)
{
    QList<QHostAddress> sources;
    for (int i = 0; i < count; ++i)
        sources.append(QHostAddress(QStringLiteral("127.0.%1.%2").arg(i / 250).arg(2 + i % 250)));
    return sources;
}

QByteArray replyBody(const QByteArray &reply)
{
    const qsizetype blank = reply.indexOf("\r\n\r\n");
    return blank < 0 ? QByteArray() : reply.mid(blank + 4);
}

} // namespace testsupport
