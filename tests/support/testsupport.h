#pragma once

#include "platform/logging.h"
#include "platform/processtable.h"
#include "server/serverenvironment.h"

#include <QRandomGenerator>
#include <QSet>
#include <QStringList>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

class ServerManager;

namespace testsupport {

// Points HOME, the XDG directories and QStandardPaths at a fresh temporary directory, so that no
// test reads or writes the real user's files. Called before the application object exists.
QString isolateHome();

// The one source of randomness a test program draws on. Its seed is printed when first drawn,
// and taken from QUIVRA_TEST_SEED when that is set, so that a failed run can be repeated.
QRandomGenerator &random();

// Whether a text names a Mac where this platform says "computer": anything but the product's
// name and the phone's own "Add Mac" button.
bool speaksOfAMac(QString text);

// A process table that signals only the processes a test started itself.
class GuardedProcessTable : public platform::ProcessTable
{
public:
    void allow(qint64 pid) { m_allowed.insert(pid); }
    bool signal(qint64 pid, int signalNumber) override;
    QList<qint64> refused() const { return m_refused; }

private:
    QSet<qint64> m_allowed;
    QList<qint64> m_refused;
};

// The test build of etserver (see fake_etserver/).
QString fakeEtserverPath();
// The exact arguments the app gives etserver, for starting look-alike orphans.
QStringList etserverArguments(const QString &supportDirectory);

// A steady clock that moves only when the test moves it.
class ManualClock
{
public:
    ClockTimer::Clock clock() const
    {
        return [offset = m_offset] { return std::chrono::steady_clock::time_point {} + *offset; };
    }
    void advance(std::chrono::milliseconds by) { *m_offset += by; }

private:
    std::shared_ptr<std::chrono::milliseconds> m_offset =
        std::make_shared<std::chrono::milliseconds>(std::chrono::hours(1));
};

// The real machine, except: the fake etserver, the guarded process table, a 20 ms uptime tick, a
// pairing port the system chooses, no DNS-SD advertisement, and restarts and port checks on a
// clock that stands still unless a test swaps in a ManualClock it moves.
ServerEnvironment environment(std::shared_ptr<GuardedProcessTable> processes);

// Waits until the manager's clean-up of servers an earlier run left behind is over (it runs on
// timers, and a start waits for it); the calling test fails otherwise.
void awaitCleanup(const ServerManager &manager);

// A loopback port that refuses connections for as long as holder lives.
quint16 refusingTcpPort(QTcpSocket &holder);

// The test runner puts its own message handler in place when a run starts; this puts the app's
// handler over it, which passes on what is not the app's own. Console lines are dropped unless
// QUIVRA_TEST_VERBOSE is set; ConsoleCapture still sees them.
void routeLogging();

// Collects console lines while it lives.
class ConsoleCapture
{
public:
    ConsoleCapture();
    ~ConsoleCapture();
    QStringList lines() const;

private:
    logging::ConsoleSink m_previous;
    std::shared_ptr<QStringList> m_lines = std::make_shared<QStringList>();
};

} // namespace testsupport

// QTEST_GUILESS_MAIN with the isolated home.
#define QUIVRA_TEST_MAIN(TestObject)                                                               \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        testsupport::isolateHome();                                                                \
        QCoreApplication app(argc, argv);                                                          \
        TestObject test;                                                                           \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        QTest::qInit(&test, argc, argv);                                                           \
        testsupport::routeLogging();                                                               \
        const int failed = QTest::qRun();                                                          \
        QTest::qCleanup();                                                                         \
        return failed;                                                                             \
    }
