#include "commands.h"

#include "bigdigits.h"
#include "controlclient.h"
#include "pairing/pairingsession.h"
#include "platform/quitsignals.h"
#include "text.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTcpSocket>
#include <QTextStream>
#include <QTimer>

#include <cstdio>
#include <unistd.h>
#include <utility>

namespace commands {
namespace {

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

QTextStream &err()
{
    static QTextStream stream(stderr);
    return stream;
}

// How long start waits for the server to accept connections, and stop for it to end.
constexpr qint64 startDeadlineMs = 5000;

int failedCall(const ControlClient &client)
{
    err() << client.lastError() << Qt::endl;
    return Failed;
}

QString duration(int seconds)
{
    return Text::tr("%1h %2m %3s").arg(seconds / 3600).arg(seconds / 60 % 60).arg(seconds % 60);
}

} // namespace

int status(ControlClient &client, bool json)
{
    if (json) {
        // Exactly what a phone is told, from the same endpoint.
        QNetworkAccessManager network;
        QNetworkRequest request(QUrl(QStringLiteral("http://127.0.0.1:8080/status")));
        QNetworkReply *reply = network.get(request);
        QEventLoop loop;
        QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
        if (reply->error() != QNetworkReply::NoError) {
            err() << Text::tr("The status endpoint did not answer (%1); is the server running?")
                         .arg(reply->errorString())
                  << Qt::endl;
            return Failed;
        }
        out() << reply->readAll() << Qt::endl;
        return Success;
    }
    const bool running = client.property("isRunning").toBool();
    const QString device = client.property("lastPairedDevice").toString();
    const QString reason = client.property("failureReason").toString();
    out() << Text::tr("Server:       %1")
                 .arg(running ? Text::tr("running, up %1")
                                    .arg(duration(client.property("uptime").toInt()))
                              : Text::tr("stopped"))
          << (reason.isEmpty() ? QString() : '\n' + Text::tr("Reason:       %1").arg(reason))
          << '\n'
          << Text::tr("Port:         %1").arg(client.property("port").toInt()) << '\n'
          << Text::tr("Address:      %1").arg(client.property("localIP").toString()) << '\n'
          << Text::tr("Pairing:      %1")
                 .arg(client.property("isPairing").toBool() ? Text::tr("on") : Text::tr("off"))
          << '\n'
          << Text::tr("Last paired:  %1").arg(device.isEmpty() ? Text::tr("none") : device)
          << Qt::endl;
    return Success;
}

int start(ControlClient &client)
{
    if (!client.call(QStringLiteral("StartServer")))
        return failedCall(client);
    // Launched is not yet serving: a server that cannot bind its port dies moments later.
    const int port = client.property("port").toInt();
    QElapsedTimer waited;
    waited.start();
    bool running = client.property("isRunning").toBool();
    bool accepting = false;
    while (running && !accepting && waited.elapsed() < startDeadlineMs) {
        QTcpSocket probe;
        probe.connectToHost(QHostAddress::LocalHost, quint16(port));
        accepting = probe.waitForConnected(100);
        if (!accepting) {
            // A refusal comes at once; the pause keeps the polling light.
            QEventLoop pause;
            QTimer::singleShot(100, &pause, &QEventLoop::quit);
            pause.exec();
        }
        running = client.property("isRunning").toBool();
    }
    if (accepting && running) {
        out() << Text::tr("Server running, accepting connections on port %1").arg(port) << Qt::endl;
        return Success;
    }
    const QString reason = client.property("failureReason").toString();
    if (!running)
        err() << Text::tr("The server did not start: %1")
                     .arg(reason.isEmpty() ? Text::tr("it stopped; see quivractl logs") : reason)
              << Qt::endl;
    else
        err() << Text::tr("The server is running but port %1 did not accept connections within "
                          "%2 s; see quivractl logs")
                     .arg(port)
                     .arg(startDeadlineMs / 1000)
              << Qt::endl;
    return Failed;
}

int stop(ControlClient &client)
{
    if (!client.call(QStringLiteral("StopServer")))
        return failedCall(client);
    // The app stops it without waiting: SIGTERM, and SIGKILL after 2 s.
    if (client.property("isRunning").toBool()) {
        QEventLoop loop;
        QObject::connect(&client, &ControlClient::propertyChanged,
                         [&](const QString &name, const QVariant &value) {
                             if (name == QLatin1String("isRunning") && !value.toBool())
                                 loop.quit();
                         });
        QTimer::singleShot(startDeadlineMs, &loop, &QEventLoop::quit);
        if (client.property("isRunning").toBool())
            loop.exec();
    }
    if (client.property("isRunning").toBool()) {
        err() << Text::tr("The server did not stop within %1 s; see quivractl logs")
                     .arg(startDeadlineMs / 1000)
              << Qt::endl;
        return Failed;
    }
    out() << Text::tr("Server stopped") << Qt::endl;
    return Success;
}

int pair(ControlClient &client)
{
    if (!client.property("isRunning").toBool()) {
        // Sending the user to a start that fails for the same reason would go round in circles.
        const QString reason = client.property("failureReason").toString();
        if (reason.isEmpty())
            err() << Text::tr("The server is not running, so no phone can pair. Start it with: "
                              "quivractl start");
        else
            err() << Text::tr("The server is not running (%1), so no phone can pair.").arg(reason);
        err() << Qt::endl;
        return Failed;
    }
    if (!client.property("isPairing").toBool() && !client.call(QStringLiteral("TogglePairingMode")))
        return failedCall(client);
    const QString address = client.property("localIP").toString();
    const bool terminal = ::isatty(STDOUT_FILENO);
    QString shownCode;
    const auto showCode = [&](const QString &code) {
        if (code == shownCode)
            return;
        shownCode = code;
        out() << (terminal ? "\n" : "") << Text::tr("Pairing code: %1").arg(code) << "\n\n";
        for (const QString &row : bigdigits::render(code))
            out() << "  " << row << '\n';
        out() << Qt::flush;
    };
    // Wrong codes keep coming from somewhere: the person at the screen should know from where.
    QString shownGuessers;
    const auto showGuessers = [&] {
        const QString line =
            PairingSession::describeGuessers(client.property("pairingGuessers").toStringList());
        if (line == std::exchange(shownGuessers, line) || line.isEmpty())
            return;
        out() << (terminal ? "\n" : "") << line << Qt::endl;
    };
    showCode(client.property("pairingToken").toString());
    out() << Text::tr("Address: %1").arg(address) << "\n\n";
    for (const QString &row : bigdigits::render(address))
        out() << "  " << row << '\n';
    out() << '\n'
          << Text::tr("Open Quivra on your iPhone and enter the code. Ctrl-C cancels.") << Qt::endl;
    showGuessers();

    // The app owns the code's lifetime: this only shows the time it has left.
    int result = Interrupted;
    qint64 expiresAt = client.property("pairingExpiresAt").toLongLong();
    QTimer countdown;
    QObject::connect(&countdown, &QTimer::timeout, [&] {
        const qint64 left = (expiresAt - QDateTime::currentMSecsSinceEpoch() + 999) / 1000;
        if (terminal && left >= 0)
            out() << '\r'
                  << Text::tr("Expires in %1")
                         .arg(QString::asprintf("%d:%02d", int(left / 60), int(left % 60)))
                  << ' ' << Qt::flush;
    });
    countdown.start(1000);
    QObject::connect(&client, &ControlClient::paired, [&](const QString &device) {
        out() << (terminal ? "\n" : "") << Text::tr("Paired with %1").arg(device) << Qt::endl;
        result = Success;
        QCoreApplication::quit();
    });
    QObject::connect(
        &client, &ControlClient::propertyChanged, [&](const QString &name, const QVariant &value) {
            if (name == QLatin1String("pairingGuessers")) {
                showGuessers();
                return;
            }
            if (name == QLatin1String("pairingExpiresAt")) {
                // Renewed elsewhere (the setup window): the new code replaces the old one.
                expiresAt = client.property("pairingExpiresAt").toLongLong();
                showCode(client.property("pairingToken").toString());
                return;
            }
            // A pairing switches pairing mode off too, but its Paired signal comes first.
            if (name != QLatin1String("isPairing") || value.toBool() || result == Success)
                return;
            const bool expired = expiresAt <= QDateTime::currentMSecsSinceEpoch();
            err() << (terminal ? "\n" : "")
                  << (expired ? Text::tr("The pairing code expired.")
                              : Text::tr("Pairing mode was switched off."))
                  << Qt::endl;
            result = Failed;
            QCoreApplication::quit();
        });
    platform::quitOnTerminationSignals(*QCoreApplication::instance());
    QCoreApplication::exec();
    if (result != Success && client.property("isPairing").toBool())
        client.call(QStringLiteral("TogglePairingMode"));
    if (result == Interrupted)
        err() << (terminal ? "\n" : "") << Text::tr("Pairing cancelled.") << Qt::endl;
    return result;
}

int logs(ControlClient &client, bool follow)
{
    const std::optional<QVariant> text = client.call(QStringLiteral("Logs"));
    if (!text)
        return failedCall(client);
    QString shown = text->toString();
    out() << shown << Qt::flush;
    if (!follow)
        return Success;
    QObject::connect(&client, &ControlClient::propertyChanged,
                     [&](const QString &name, const QVariant &value) {
                         if (name != QLatin1String("logs"))
                             return;
                         const QString now = value.toString();
                         // The log keeps only its tail, so find where the shown text ends in it.
                         const QString tail = shown.right(200);
                         const qsizetype at = tail.isEmpty() ? -1 : now.lastIndexOf(tail);
                         out() << (at >= 0 ? now.mid(at + tail.size()) : now) << Qt::flush;
                         shown = now;
                     });
    platform::quitOnTerminationSignals(*QCoreApplication::instance());
    QCoreApplication::exec();
    return Success;
}

int devices(ControlClient &client, bool json)
{
    const std::optional<QVariant> text = client.call(QStringLiteral("Devices"));
    if (!text)
        return failedCall(client);
    if (json) {
        out() << text->toString() << Qt::endl;
        return Success;
    }
    const QJsonArray list = QJsonDocument::fromJson(text->toString().toUtf8()).array();
    if (list.isEmpty()) {
        out() << Text::tr("No paired phones.") << Qt::endl;
        return Success;
    }
    out() << QStringLiteral("%1  %2  %3\n")
                 .arg(Text::tr("Name"), -28)
                 .arg(Text::tr("Paired"), -16)
                 .arg(Text::tr("Fingerprint"));
    for (const QJsonValue &value : list) {
        const QJsonObject device = value.toObject();
        const QDateTime paired =
            QDateTime::fromString(device.value(QStringLiteral("pairedAt")).toString(), Qt::ISODate);
        out() << QStringLiteral("%1  %2  %3\n")
                     .arg(device.value(QStringLiteral("name")).toString().left(28), -28)
                     .arg(paired.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm")), -16)
                     .arg(device.value(QStringLiteral("fingerprint")).toString());
    }
    out() << Qt::flush;
    return Success;
}

int revoke(ControlClient &client, const QString &nameOrFingerprint, bool yes)
{
    if (!yes) {
        out() << Text::tr("Revoke \"%1\"? It will no longer be able to log in to this computer. "
                          "[y/N] ")
                     .arg(nameOrFingerprint)
              << Qt::flush;
        const QString answer = QTextStream(stdin).readLine().trimmed().toLower();
        if (answer != QLatin1String("y") && answer != QLatin1String("yes")) {
            err() << Text::tr("Nothing revoked.") << Qt::endl;
            return Failed;
        }
    }
    const auto reply = client.callWith(QStringLiteral("Revoke"), { nameOrFingerprint });
    if (!reply)
        return failedCall(client);
    const bool ok = reply->value(0).toBool();
    (ok ? out() : err()) << reply->value(1).toString() << Qt::endl;
    return ok ? Success : Failed;
}

} // namespace commands
