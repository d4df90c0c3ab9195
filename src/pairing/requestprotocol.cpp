#include "pairing/pairingconnection.h"
#include "pairing/pairinglistener.h"

void PairingListener::handleRequest(const QString &request, PairingConnection *connection)
{
    Q_UNUSED(request);
    connection->sendResponse(QStringLiteral("404 Not Found"), QStringLiteral("Not Found"));
}
