#include "platform/processtable.h"

#include <QFile>
#include <QFileInfo>
#include <QString>

#include <cstring>
#include <libproc.h>
#include <sys/proc_info.h>
#include <sys/sysctl.h>
#include <unistd.h>

namespace platform {

bool isZombie(qint64 pid)
{
    proc_bsdinfo info {};
    const int size = proc_pidinfo(int(pid), PROC_PIDTBSDINFO, 0, &info, sizeof info);
    return size == int(sizeof info) && info.pbi_status == SZOMB;
}

bool ProcessTable::isOwnServer(qint64 pid) const
{
    if (pid <= 0)
        return false;
    proc_bsdinfo info {};
    if (proc_pidinfo(int(pid), PROC_PIDTBSDINFO, 0, &info, sizeof info) != int(sizeof info)
        || info.pbi_uid != ::getuid())
        return false;
    char path[PROC_PIDPATHINFO_MAXSIZE] = {};
    if (proc_pidpath(int(pid), path, sizeof path) <= 0)
        return false;
    return QFileInfo(QString::fromUtf8(path)).fileName() == QLatin1String("etserver");
}

QStringList ProcessTable::arguments(qint64 pid) const
{
    if (pid <= 0)
        return {};
    // KERN_PROCARGS2: argc, the executable's path, padding, then argc strings.
    int mib[3] = { CTL_KERN, KERN_PROCARGS2, int(pid) };
    size_t size = 0;
    if (::sysctl(mib, 3, nullptr, &size, nullptr, 0) != 0 || size < sizeof(int))
        return {};
    QByteArray buffer(qsizetype(size), Qt::Uninitialized);
    if (::sysctl(mib, 3, buffer.data(), &size, nullptr, 0) != 0)
        return {};
    buffer.truncate(qsizetype(size));
    int argc = 0;
    std::memcpy(&argc, buffer.constData(), sizeof argc);
    qsizetype at = buffer.indexOf('\0', sizeof argc);
    while (at >= 0 && at < buffer.size() && buffer.at(at) == '\0')
        ++at;
    QStringList arguments;
    while (at >= 0 && at < buffer.size() && arguments.size() < argc) {
        const qsizetype end = buffer.indexOf('\0', at);
        arguments.append(QFile::decodeName(buffer.mid(at, end < 0 ? -1 : end - at)));
        at = end < 0 ? -1 : end + 1;
    }
    return arguments;
}

} // namespace platform
