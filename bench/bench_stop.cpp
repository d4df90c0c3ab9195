// How long stopServer() takes for a child that exits at once on SIGTERM.
#include "server/servermanager.h"
#include "testsupport.h"

#include <QElapsedTimer>

#include <algorithm>

int main(int argc, char *argv[])
{
    testsupport::isolateHome();
    testsupport::routeLogging();
    QCoreApplication app(argc, argv);
    auto processes = std::make_shared<testsupport::GuardedProcessTable>();
    ServerEnvironment env = testsupport::environment(processes);
    env.advertise = false;
    ServerManager manager(env);
    QList<double> times;
    for (int i = 0; i < 30; ++i) {
        if (!manager.isRunning())
            manager.startServer();
        QTest::qWait(50); // let the child get going, as a real one would have
        QElapsedTimer clock;
        clock.start();
        manager.stopServer();
        times.append(clock.nsecsElapsed() / 1e6);
    }
    std::sort(times.begin(), times.end());
    std::printf("stopServer: median %.2f ms, max %.2f ms over %lld runs\n", times[times.size() / 2],
                times.last(), qint64(times.size()));
}
