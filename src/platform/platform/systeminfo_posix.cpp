#include "platform/systeminfo.h"

#include <pwd.h>
#include <unistd.h>

namespace platform {

QString userName()
{
    if (const passwd *entry = ::getpwuid(::getuid()))
        return QString::fromLocal8Bit(entry->pw_name);
    return qEnvironmentVariable("USER");
}

} // namespace platform
