#include "testsupport.h"

#include "server/servermanager.h"

#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTcpServer>

#include <cstdio>

namespace testsupport {

bool speaksOfAMac(QString text)
{
    static const QRegularExpression mac(QStringLiteral("\\bMac"));
    return text.remove(QStringLiteral("QuivraMac")).remove(QStringLiteral("Add Mac")).contains(mac);
}

QString isolateHome()
{
    static QTemporaryDir home;
    const QString path = home.path();
    qputenv("HOME", path.toUtf8());
    qputenv("XDG_DATA_HOME", (path + QStringLiteral("/.local/share")).toUtf8());
    qputenv("XDG_CONFIG_HOME", (path + QStringLiteral("/.config")).toUtf8());
    qputenv("XDG_CACHE_HOME", (path + QStringLiteral("/.cache")).toUtf8());
    QStandardPaths::setTestModeEnabled(true);
    // The app and quivractl the tests start speak the user's language; the tests read English.
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    return path;
}

QRandomGenerator &random()
{
    static QRandomGenerator generator = [] {
        bool given = false;
        quint32 seed = qEnvironmentVariable("QUIVRA_TEST_SEED").toUInt(&given);
        if (!given)
            seed = QRandomGenerator::system()->generate();
        // Straight to stderr: the test log shows it with a failure, whatever the logging rules.
        std::fprintf(stderr, "Random seed %u: QUIVRA_TEST_SEED=%u repeats this run\n", seed, seed);
        return QRandomGenerator(seed);
    }();
    return generator;
}

bool GuardedProcessTable::signal(qint64 pid, int signalNumber)
{
    if (!m_allowed.contains(pid)) {
        m_refused.append(pid);
        return false;
    }
    return ProcessTable::signal(pid, signalNumber);
}

QString fakeEtserverPath()
{
    return QStringLiteral(QUIVRA_FAKE_ETSERVER);
}

QStringList etserverArguments(const QString &supportDirectory)
{
    return { "--port",
             "2022",
             "--pidfile",
             supportDirectory + "/etserver.pid",
             "--logdir",
             supportDirectory,
             "--serverfifo",
             "/tmp/et.fifo",
             "--logtostdout",
             "--verbose",
             "1" };
}

ServerEnvironment environment(std::shared_ptr<GuardedProcessTable> processes)
{
    ServerEnvironment env;
    env.locateExecutable = [] { return fakeEtserverPath(); };
    env.processes = std::move(processes);
    env.uptimeInterval = std::chrono::milliseconds(20);
    env.pairingPort = 0;
    env.advertise = false;
    env.steadyNow = ManualClock().clock();
    env.longestSleep = std::chrono::milliseconds(5);
    return env;
}

quint16 refusingTcpPort(QTcpSocket &holder)
{
    // Bound but not listening: the port stays ours and refuses every connection.
    holder.bind(QHostAddress::LocalHost, 0);
    return holder.localPort();
}

void routeLogging()
{
    logging::install();
    if (qEnvironmentVariableIsEmpty("QUIVRA_TEST_VERBOSE"))
        logging::setConsoleSink([](const QString &) {});
}

ConsoleCapture::ConsoleCapture()
{
    m_previous =
        logging::setConsoleSink([lines = m_lines](const QString &line) { lines->append(line); });
}

ConsoleCapture::~ConsoleCapture()
{
    logging::setConsoleSink(m_previous);
}

QStringList ConsoleCapture::lines() const
{
    return *m_lines;
}

void awaitCleanup(const ServerManager &manager)
{
    if (!QTest::qWaitFor([&] { return !manager.supervisor().isCleaningUp(); }, 5000))
        QTest::qFail("the clean-up of earlier servers did not end", __FILE__, __LINE__);
}

} // namespace testsupport
