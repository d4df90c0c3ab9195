#include "server/keyinstaller.h"

#include "platform/console.h"
#include "server/authorizedkeys.h"

#include <QDir>

KeyInstaller::KeyInstaller(Log log)
    : m_log(std::move(log))
{ }

bool KeyInstaller::install(const QString &publicKey) const
{
    if (const auto problem =
            authorizedkeys::install(QDir::homePath(), publicKey, QDate::currentDate())) {
        if (problem->refused) {
            console::line(QStringLiteral("Not installing key: ") + problem->text);
            m_log(QStringLiteral("[QuivraMac] Not installing key: ") + problem->text);
        } else {
            console::line(QStringLiteral("Failed to save key: ") + problem->text);
            m_log(QStringLiteral("[QuivraMac] Pairing failed: ") + problem->text);
        }
        return false;
    }
    console::line(QStringLiteral("Successfully added key to authorized_keys"));
    m_log(QStringLiteral("[QuivraMac] Pairing successful - key added"));
    return true;
}
