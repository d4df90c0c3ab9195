#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QList>

namespace testsupport {

// Sends one request from `from` and returns everything the listener answered before closing.
// The listener shares this thread's event loop, so the client waits without blocking it.
QByteArray exchange(quint16 port, const QByteArray &request,
                    const QHostAddress &from = QHostAddress::LocalHost);

// Sends all requests at once, each on its own connection from sources[i % sources.size()], and
// returns the replies in the same order once every connection is closed.
QList<QByteArray> exchangeAll(quint16 port, const QList<QByteArray> &requests,
                              const QList<QHostAddress> &sources = { QHostAddress::LocalHost });

// "127.0.0.2" to "127.0.0.{count+1}": loopback sources the listener counts separately.
QList<QHostAddress> loopbackSources(int count);

// The body of an HTTP reply, after its blank line.
QByteArray replyBody(const QByteArray &reply);

} // namespace testsupport
