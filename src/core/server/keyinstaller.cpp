#include "server/keyinstaller.h"

#include "platform/logging.h"
#include "server/authorizedkeys.h"

bool KeyInstaller::install(const QString &publicKey) const
{
    if (const auto error = authorizedkeys::install(m_home, publicKey, QDate::currentDate())) {
        qCInfo(lcConsole).nospace().noquote() << "Failed to save key: " << *error;
        qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Pairing failed: " << *error;
        return false;
    }
    qCInfo(lcConsole).nospace().noquote() << "Successfully added key to authorized_keys";
    qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Pairing successful - key added";
    return true;
}
