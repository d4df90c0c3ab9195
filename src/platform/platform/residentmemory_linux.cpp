#include "platform/residentmemory.h"

#include <QFile>
#include <QList>

#include <sys/mman.h>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace platform {
namespace {

struct Mapping
{
    quintptr start = 0;
    quintptr end = 0;
    // Read-only and private, of a file that still exists: its pages are the file's own unless a
    // field below says some were copied (relocations the loader wrote before protecting them).
    bool clean = false;
};

// The mappings whose every page can be read again from their file.
QList<Mapping> cleanFileMappings()
{
    QFile smaps(QStringLiteral("/proc/self/smaps"));
    if (!smaps.open(QIODevice::ReadOnly))
        return {};
    QList<Mapping> found;
    Mapping current;
    const QList<QByteArray> lines = smaps.readAll().split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() >= 5 && fields[0].contains('-') && !fields[0].endsWith(':')) {
            if (current.clean)
                found.append(current);
            const QList<QByteArray> range = fields[0].split('-');
            const QByteArray &permissions = fields[1];
            current.start = range.value(0).toULongLong(nullptr, 16);
            current.end = range.value(1).toULongLong(nullptr, 16);
            current.clean = range.size() == 2 && permissions.size() == 4 && permissions[1] == '-'
                && permissions[3] == 'p' && fields[4] != "0" && fields.size() >= 6
                && fields[5].startsWith('/') && !line.endsWith("(deleted)");
        } else if (fields.size() >= 2
                   && (fields[0] == "Anonymous:" || fields[0] == "Swap:" || fields[0] == "Locked:")
                   && fields[1] != "0") {
            current.clean = false;
        }
    }
    if (current.clean)
        found.append(current);
    return found;
}

} // namespace

void releaseUnusedMemory()
{
#ifdef __GLIBC__
    // glibc keeps freed memory in its arenas for the next allocation.
    malloc_trim(0);
#endif
    // Only the process's hold is dropped: the pages stay in the kernel's cache, shared with every
    // other process that maps them, and the next touch maps them again without reading the disk.
    for (const Mapping &mapping : cleanFileMappings())
        ::madvise(reinterpret_cast<void *>(mapping.start), mapping.end - mapping.start,
                  MADV_DONTNEED);
}

} // namespace platform
