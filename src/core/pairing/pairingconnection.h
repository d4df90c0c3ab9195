#pragma once

#include "platform/sockethold.h"

#include <QByteArray>
#include <QObject>
#include <QTimer>

#include <chrono>

class QTcpSocket;

// One accepted phone connection: reads one request, sends one reply, closes and deletes itself.
class PairingConnection : public QObject
{
    Q_OBJECT

public:
    static constexpr qsizetype maxRequestBytes = 4096;
    static constexpr std::chrono::milliseconds defaultReadDeadline { 5000 };

    // The request must arrive, and a reply must be taken, within readDeadline.
    explicit PairingConnection(QTcpSocket *socket,
                               std::chrono::milliseconds readDeadline = defaultReadDeadline);

    // "address:port" of the phone, for console lines.
    QString peer() const;
    QString peerAddress() const;

    // Plain-text and JSON replies; each closes the connection once the bytes are sent.
    void sendResponse(const QString &status, const QString &body);
    void sendJSONResponse(const QByteArray &json);
    void close();
    // Still waiting for its request: the first to go when the listener is full.
    bool isReading() const { return m_reading; }

Q_SIGNALS:
    // Once, when the connection is closed (its reply, if any, still being sent).
    void closed();
    // Once per connection: the request as UTF-8 text, cut at maxRequestBytes.
    void requestReceived(const QString &request);

private:
    void onReadyRead();
    bool requestComplete() const;
    void finishReading();
    void receiveFailed(const QString &error);
    void send(const QByteArray &reply);

    QTcpSocket *m_socket;
    platform::SocketHold m_hold;
    QByteArray m_buffer;
    QTimer m_deadline;
    QTimer m_lingerLimit;
    std::chrono::milliseconds m_readDeadline;
    bool m_reading = true;
    bool m_closed = false;
};
