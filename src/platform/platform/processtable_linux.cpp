#include "platform/processtable.h"

#include <QFile>
#include <QFileInfo>

#include <unistd.h>

namespace platform {

bool isZombie(qint64 pid)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return false;
    // "pid (comm) S ...": the state follows the last ')' since comm may itself hold one.
    const QByteArray text = stat.readAll();
    const qsizetype close = text.lastIndexOf(')');
    return close >= 0 && text.size() > close + 2 && text.at(close + 2) == 'Z';
}

bool ProcessTable::isOwnServer(qint64 pid) const
{
    if (pid <= 0)
        return false;
    const QString proc = QStringLiteral("/proc/%1").arg(pid);
    QFileInfo info(proc);
    if (!info.exists() || info.ownerId() != ::getuid())
        return false;
    // The executable itself, not argv[0] or comm: both are free text the process chooses.
    QString exe = QFileInfo(proc + QStringLiteral("/exe")).symLinkTarget();
    if (exe.endsWith(QLatin1String(" (deleted)")))
        exe.chop(10);
    return !exe.isEmpty() && QFileInfo(exe).fileName() == QLatin1String("etserver");
}

QStringList ProcessTable::arguments(qint64 pid) const
{
    if (pid <= 0)
        return {};
    QFile cmdline(QStringLiteral("/proc/%1/cmdline").arg(pid));
    if (!cmdline.open(QIODevice::ReadOnly))
        return {};
    QByteArray text = cmdline.readAll();
    if (text.endsWith('\0'))
        text.chop(1);
    QStringList arguments;
    for (const QByteArray &argument : text.split('\0'))
        arguments.append(QFile::decodeName(argument));
    return text.isEmpty() ? QStringList() : arguments;
}

} // namespace platform
