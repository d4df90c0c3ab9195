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
    if (!requestparsing::isWellFormed(request)) {
        connection->sendResponse(badRequest, QStringLiteral("Invalid Request"));
        return;
    }
    const QString requestLine = requestparsing::lines(request).constFirst();
    const bool status = requestLine.contains(QLatin1String("GET /status"));
    if (!status && !requestLine.contains(QLatin1String("/pair"))) {
        connection->sendResponse(QStringLiteral("404 Not Found"), QStringLiteral("Not Found"));
        return;
    }
    // One judgement for both: a page the user visits may neither pair nor read who and where
    // this computer is. It is refused before any code is compared, so it is no guess either.
    if (requestparsing::comesFromWebPage(request)) {
        qCInfo(lcConsole).nospace().noquote()
            << (status ? "Status Denied" : "Pairing Denied") << ": request from a web page";
        connection->sendResponse(forbidden, QStringLiteral("Forbidden"));
        return;
    }
    if (status)
        handleStatusRequest(connection);
    else
        handlePairRequest(requestLine, request, connection);
}

void PairingListener::handleStatusRequest(PairingConnection *connection)
{
    // Requests that arrive together share one report, worked out in this turn of the loop: the
    // state is the same for all of them, and the phone still hears the state of now.
    if (!m_reportThisTurn.isEmpty()) {
        connection->sendJSONResponse(m_reportThisTurn);
        return;
    }
    // Each report waits for the SSH probe; a bounded number keeps a flood from piling up, and a
    // bound per sender keeps one sender's burst from taking everyone else's share.
    const QString address = connection->peerAddress();
    if (m_statusRequestsInProgress >= maxStatusRequestsInProgress
        || m_statusRequestsPerAddress.value(address) >= maxStatusRequestsPerAddress) {
        connection->sendResponse(unavailable, serverNotReady);
        return;
    }
    ++m_statusRequestsInProgress;
    ++m_statusRequestsPerAddress[address];
    auto *engine =
        new DiagnosticEngine(m_setup.serverRunning, m_sshProbe, m_setup.diagnostics, this);
    connect(engine, &DiagnosticEngine::finished, this,
            [this, engine, address, connection = QPointer(connection)] {
                --m_statusRequestsInProgress;
                if (--m_statusRequestsPerAddress[address] == 0)
                    m_statusRequestsPerAddress.remove(address);
                engine->deleteLater();
                const QByteArray report = statusjson::encode(engine->makeStatusResponse(m_port));
                shareForThisTurn(report);
                if (connection)
                    connection->sendJSONResponse(report);
            });
    engine->runAllChecks();
}

void PairingListener::shareForThisTurn(const QByteArray &report)
{
    if (m_reportThisTurn.isEmpty())
        QMetaObject::invokeMethod(
            this, [this] { m_reportThisTurn.clear(); }, Qt::QueuedConnection);
    m_reportThisTurn = report;
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
    const QString address = connection->peerAddress();
    if (session->ignores(address)) {
        qCInfo(lcConsole).nospace().noquote()
            << "Pairing Denied: Too many wrong codes from " << logging::oneLine(address);
        connection->sendResponse(forbidden, QStringLiteral("Too many wrong codes"));
        return;
    }
    if (!requestparsing::tokenMatches(requestLine, session->token())) {
        qCInfo(lcConsole).nospace().noquote() << "Pairing Denied: Invalid Token";
        session->recordFailedAttempt(address);
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
    const QString key = publickey::withPlainComment(body.trimmed());
    if (!publickey::isAcceptable(key)) {
        connection->sendResponse(badRequest, QStringLiteral("Invalid Key Format"));
        return;
    }
    // The key is on disk before the phone hears of success.
    if (onPairingRequest && !onPairingRequest({ key, deviceName, address })) {
        connection->sendResponse(unavailable, serverNotReady);
        return;
    }
    qCInfo(lcConsole).nospace().noquote()
        << "Pairing Success! Device: " << logging::oneLine(deviceName);
    connection->sendResponse(QStringLiteral("200 OK"), QStringLiteral("Paired Successfully"));
}
