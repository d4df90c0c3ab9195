#include "platform/processtable.h"

#include <QFileInfo>
#include <QString>

#include <libproc.h>
#include <sys/proc_info.h>
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

} // namespace platform
