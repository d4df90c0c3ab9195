#include "dnssddaemon.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <csignal>
#include <unistd.h>

namespace testsupport {
namespace {

const QString busPidFile = QStringLiteral("/run/dbus/pid");

int run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    if (!process.waitForFinished(10000))
        return -1;
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

bool avahiAnswers()
{
    return run(QStringLiteral("avahi-daemon"), { QStringLiteral("--check") }) == 0;
}

} // namespace

QString DnsSdDaemon::ensureRunning()
{
    if (QStandardPaths::findExecutable(QStringLiteral("avahi-daemon")).isEmpty())
        return QStringLiteral("avahi-daemon is not installed (scripts/setup.sh installs it)");
    if (avahiAnswers())
        return {};
    if (::getuid() != 0)
        return QStringLiteral("no avahi-daemon is running and only root may start one");

    // A socket left behind by a bus that is gone does not count.
    const bool busAnswers = run(QStringLiteral("dbus-send"),
                                { "--system", "--print-reply", "--dest=org.freedesktop.DBus", "/",
                                  "org.freedesktop.DBus.GetId" })
        == 0;
    if (!busAnswers) {
        QDir().mkpath(QStringLiteral("/run/dbus"));
        QFile::remove(busPidFile);
        QFile::remove(QStringLiteral("/run/dbus/system_bus_socket"));
        if (run(QStringLiteral("dbus-daemon"),
                { QStringLiteral("--system"), QStringLiteral("--fork") })
            != 0)
            return QStringLiteral("could not start a system D-Bus for avahi-daemon");
        m_startedBus = true;
    }
    // Loopback only: the tests' advertisements stay on this machine.
    const QString config = m_config.filePath(QStringLiteral("avahi-daemon.conf"));
    QFile file(config);
    file.open(QIODevice::WriteOnly);
    file.write("[server]\nallow-interfaces=lo\nuse-ipv6=no\n"
               "[wide-area]\nenable-wide-area=no\n"
               "[publish]\npublish-hinfo=no\npublish-workstation=no\n");
    file.close();
    if (run(QStringLiteral("avahi-daemon"), { QStringLiteral("-f"), config, QStringLiteral("-D") })
        != 0)
        return QStringLiteral("could not start avahi-daemon");
    m_startedAvahi = true;
    if (!QTest::qWaitFor(avahiAnswers, 10000))
        return QStringLiteral("avahi-daemon started but does not answer");
    return {};
}

DnsSdDaemon::~DnsSdDaemon()
{
    if (m_startedAvahi) {
        run(QStringLiteral("avahi-daemon"), { QStringLiteral("-k") });
        [[maybe_unused]] const bool stopped = QTest::qWaitFor([] { return !avahiAnswers(); }, 5000);
    }
    if (m_startedBus) {
        QFile pidFile(busPidFile);
        if (pidFile.open(QIODevice::ReadOnly)) {
            const pid_t pid = pidFile.readAll().trimmed().toInt();
            if (pid > 0)
                ::kill(pid, SIGTERM);
        }
        QFile::remove(busPidFile);
        QFile::remove(QStringLiteral("/run/dbus/system_bus_socket"));
    }
}

QStringList DnsSdDaemon::browse(const QString &type)
{
    QProcess browser;
    browser.start(QStringLiteral("avahi-browse"), { QStringLiteral("-rpt"), type });
    browser.waitForFinished(10000);
    QStringList resolved;
    const QStringList lines =
        QString::fromUtf8(browser.readAllStandardOutput()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.startsWith(QLatin1Char('=')))
            resolved << line;
    }
    return resolved;
}

} // namespace testsupport
