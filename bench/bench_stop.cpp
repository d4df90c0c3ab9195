// How long a stop holds the main loop, for a child that exits at once on SIGTERM and for one that
// ignores it (killed after 2 s): the worst lateness of a 5 ms timer from stopServer() until the
// child is gone, and the stop's whole duration.
#include "server/servermanager.h"
#include "testsupport.h"

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

namespace {

struct Run
{
    double stallMs;
    double totalMs;
};

Run stopOnce(ServerManager &manager)
{
    if (!manager.isRunning())
        manager.startServer();
    QTest::qWait(50); // let the child get going, as a real one would have
    QElapsedTimer sinceTick;
    qint64 worst = 0;
    QTimer tick;
    tick.setTimerType(Qt::PreciseTimer);
    QObject::connect(&tick, &QTimer::timeout, [&] {
        worst = std::max(worst, sinceTick.nsecsElapsed());
        sinceTick.start();
    });
    QElapsedTimer total;
    total.start();
    sinceTick.start();
    tick.start(5);
    // A loop of its own, not qWaitFor, which sleeps 10 ms between its looks.
    QSignalSpy stopped(&manager, &ServerManager::isRunningChanged);
    manager.stopServer();
    stopped.wait(5000);
    worst = std::max(worst, sinceTick.nsecsElapsed());
    return { std::max(0.0, worst / 1e6 - 5), total.nsecsElapsed() / 1e6 };
}

void report(const char *what, QList<Run> runs)
{
    std::sort(runs.begin(), runs.end(), [](Run a, Run b) { return a.stallMs < b.stallMs; });
    const double worstTotal = std::max_element(runs.cbegin(), runs.cend(), [](Run a, Run b) {
                                  return a.totalMs < b.totalMs;
                              })->totalMs;
    std::printf("%s: main loop stalled %.2f ms at most (median %.2f) over %lld stops, each over "
                "within %.0f ms\n",
                what, runs.last().stallMs, runs[runs.size() / 2].stallMs, qint64(runs.size()),
                worstTotal);
}

} // namespace

int main(int argc, char *argv[])
{
    testsupport::isolateHome();
    testsupport::routeLogging();
    QCoreApplication app(argc, argv);
    auto processes = std::make_shared<testsupport::GuardedProcessTable>();
    ServerEnvironment env = testsupport::environment(processes);
    env.advertise = false;
    ServerManager manager(env);
    testsupport::awaitCleanup(manager);
    QList<Run> runs;
    for (int i = 0; i < 30; ++i)
        runs.append(stopOnce(manager));
    report("stopServer, child exits on SIGTERM", runs);
    qputenv("FAKE_ETSERVER_IGNORE_TERM", "1");
    runs.clear();
    for (int i = 0; i < 3; ++i)
        runs.append(stopOnce(manager));
    report("stopServer, child ignores SIGTERM", runs);
}
