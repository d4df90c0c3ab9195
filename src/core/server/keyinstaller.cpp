#include "server/keyinstaller.h"

#include "platform/logging.h"
#include "server/authorizedkeys.h"

bool KeyInstaller::install(const QString &publicKey) const
{
    if (const auto problem = authorizedkeys::install(m_home, publicKey, QDate::currentDate())) {
        if (problem->refused) {
            qCInfo(lcConsole).nospace().noquote() << "Not installing key: " << problem->text;
            qCInfo(lcLog).nospace().noquote()
                << "[QuivraMac] Not installing key: " << problem->text;
        } else {
            qCInfo(lcConsole).nospace().noquote() << "Failed to save key: " << problem->text;
            qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Pairing failed: " << problem->text;
        }
        return false;
    }
    qCInfo(lcConsole).nospace().noquote() << "Successfully added key to authorized_keys";
    qCInfo(lcLog).nospace().noquote() << "[QuivraMac] Pairing successful - key added";
    return true;
}
