#pragma once

#include <QString>
#include <QTemporaryDir>

namespace testsupport {

// A DNS-SD daemon for tests: the one already running (a desktop), or, as root without one (CI's
// bare container), a system bus and an avahi-daemon limited to loopback, started here and
// stopped again by the destructor.
class DnsSdDaemon
{
public:
    DnsSdDaemon() = default;
    DnsSdDaemon(const DnsSdDaemon &) = delete;
    ~DnsSdDaemon();

    // Empty when a daemon answers; otherwise why none could be had (the reason to skip).
    QString ensureRunning();

    // avahi-browse's resolved lines (-rpt) for a service type.
    static QStringList browse(const QString &type);

private:
    bool m_startedBus = false;
    bool m_startedAvahi = false;
    QTemporaryDir m_config;
};

} // namespace testsupport
