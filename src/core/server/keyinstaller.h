#pragma once

#include <QString>

#include <functional>

// Puts a paired phone's key into ~/.ssh/authorized_keys and says how that went, on the console
// and in the log. It knows nothing of the listener or of pairing mode.
class KeyInstaller
{
public:
    using Log = std::function<void(const QString &line)>;

    explicit KeyInstaller(Log log);

    // False, with the reason told, when the key was refused or could not be stored.
    bool install(const QString &publicKey) const;

private:
    Log m_log;
};
