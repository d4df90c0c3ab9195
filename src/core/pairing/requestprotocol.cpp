#include "diagnostics/diagnosticengine.h"
#include "diagnostics/sshprobe.h"
#include "pairing/pairingconnection.h"
#include "pairing/pairinglistener.h"
#include "pairing/publickey.h"
#include "pairing/requestparsing.h"
#include "platform/logging.h"

namespace {
const QString badRequest = QStringLiteral("400 Bad Request");
const QString forbidden = QStringLiteral("403 Forbidden");
const QString unavailable = QStringLiteral("503 Service Unavailable");
const QString serverNotReady = QStringLiteral("Server not ready");
} // namespace

void PairingListener::handleRequest(const QString &request, PairingConnection *connection)
{
    const QString requestLine = requestparsing::lines(request).constFirst();
    if (request.isEmpty())
        connection->sendResponse(badRequest, QStringLiteral("Invalid Request"));
    else if (requestLine.contains(QLatin1String("GET /status")))
        handleStatusRequest(connection);
    else if (requestLine.contains(QLatin1String("/pair")))
        handlePairRequest(requestLine, request, connection);
    else
        connection->sendResponse(QStringLiteral("404 Not Found"), QStringLiteral("Not Found"));
}

void PairingListener::handleStatusRequest(PairingConnection *connection)
{
    // Each report waits for the SSH probe; a bounded number keeps a flood from piling up.
    if (m_statusRequestsInProgress >= maxStatusRequestsInProgress) {
        connection->sendResponse(unavailable, serverNotReady);
        return;
    }
    ++m_statusRequestsInProgress;
    auto *engine =
        new DiagnosticEngine(m_setup.serverRunning, m_sshProbe, m_setup.diagnostics, this);
    connect(engine, &DiagnosticEngine::finished, this,
            [this, engine, connection = QPointer(connection)] {
                --m_statusRequestsInProgress;
                engine->deleteLater();
                if (connection)
                    connection->sendJSONResponse(
                        statusjson::encode(engine->makeStatusResponse(m_port)));
            });
    engine->runAllChecks();
}

void PairingListener::handlePairRequest(const QString &requestLine, const QString &request,
                                        PairingConnection *connection)
{
    PairingSession *session = m_setup.session;
    if (!session) {
        connection->sendResponse(unavailable, serverNotReady);
        return;
    }
    if (!session->acceptsPairing()) {
        qCInfo(lcConsole).nospace().noquote() << "Pairing Denied: Pairing mode not active";
        connection->sendResponse(forbidden, QStringLiteral("Pairing mode not active"));
        return;
    }
    if (requestparsing::comesFromWebPage(request, m_setup.diagnostics.hostLabel())) {
        qCInfo(lcConsole).nospace().noquote() << "Pairing Denied: request from a web page";
        session->recordFailedAttempt(connection->peerAddress());
        connection->sendResponse(forbidden, QStringLiteral("Forbidden"));
        return;
    }
    if (!requestparsing::tokenMatches(requestLine, session->token())) {
        qCInfo(lcConsole).nospace().noquote() << "Pairing Denied: Invalid Token";
        session->recordFailedAttempt(connection->peerAddress());
        connection->sendResponse(QStringLiteral("401 Unauthorized"),
                                 QStringLiteral("Invalid Token"));
        return;
    }
    QString deviceName = requestparsing::sanitizeDeviceName(
        requestparsing::headerValue(QStringLiteral("X-Device-Name"), request).value_or(QString()));
    if (deviceName.isEmpty())
        deviceName = QStringLiteral("iPhone");
    const QString body = requestparsing::body(request);
    if (body.isEmpty()) {
        connection->sendResponse(badRequest, QStringLiteral("Missing Key Body"));
        return;
    }
    const QString key = body.trimmed();
    if (!publickey::isAcceptable(key)) {
        connection->sendResponse(badRequest, QStringLiteral("Invalid Key Format"));
        return;
    }
    // The key is on disk before the phone hears of success.
    if (onPairingRequest && !onPairingRequest({ key, deviceName, connection->peerAddress() })) {
        connection->sendResponse(unavailable, serverNotReady);
        return;
    }
    qCInfo(lcConsole).nospace().noquote() << "Pairing Success! Device: " << deviceName;
    connection->sendResponse(QStringLiteral("200 OK"), QStringLiteral("Paired Successfully"));
}
