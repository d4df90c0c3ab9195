#include "platform/systeminfo.h"

#include <pwd.h>
#include <unistd.h>

namespace platform {

QString userName()
{
    // Looked up once: the process's user does not change, and every status report names it.
    static const QString name = [] {
        if (const passwd *entry = ::getpwuid(::getuid()))
            return QString::fromLocal8Bit(entry->pw_name);
        return qEnvironmentVariable("USER");
    }();
    return name;
}

} // namespace platform
