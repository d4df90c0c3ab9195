#pragma once

#include <QString>

// Puts a paired phone's key into ~/.ssh/authorized_keys and says how that went, in the console
// and log categories. It knows nothing of the listener or of pairing mode.
class KeyInstaller
{
public:
    explicit KeyInstaller(QString home)
        : m_home(std::move(home))
    { }

    // False, with the reason told, when the key was refused or could not be stored.
    bool install(const QString &publicKey) const;

private:
    QString m_home;
};
