#include "fuzzsupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace fuzzsupport {

void initialize(int *argc, char ***argv)
{
    // In memory where there is /dev/shm: the revoke target rewrites and syncs a file per input.
    const QString base = QFileInfo(QStringLiteral("/dev/shm")).isWritable()
        ? QStringLiteral("/dev/shm")
        : QDir::tempPath();
    static QTemporaryDir home(base + QStringLiteral("/quivra-fuzz-XXXXXX"));
    if (!home.isValid())
        fail("cannot make a temporary HOME");
    const QByteArray path = QFile::encodeName(home.path());
    qputenv("HOME", path);
    for (const char *name : { "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                              "XDG_STATE_HOME", "XDG_RUNTIME_DIR" })
        qputenv(name, path);
    // Each request writes console lines; printed, they would cost more than the parsing.
    QLoggingCategory::setFilterRules(QStringLiteral("quivra.*=false"));
    static QCoreApplication app(*argc, *argv);
}

QByteArray bytes(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), qsizetype(size));
}

void fail(const char *what, const QByteArray &detail)
{
    std::fprintf(stderr, "FINDING: %s\n", what);
    if (!detail.isEmpty())
        std::fprintf(stderr, "  %s\n", detail.toPercentEncoding(" :/=").constData());
    std::abort();
}

} // namespace fuzzsupport
