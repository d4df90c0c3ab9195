#include "platform/quitsignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace platform {
namespace {

int signalPipe[2] = { -1, -1 };

void onSignal(int signalNumber)
{
    // Only async-signal-safe work here; the event loop picks the byte up.
    const char byte = char(signalNumber);
    [[maybe_unused]] const auto written = ::write(signalPipe[1], &byte, 1);
}

} // namespace

void quitOnTerminationSignals(QCoreApplication &app)
{
    if (signalPipe[0] >= 0 || ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalPipe) != 0)
        return;
    auto *notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, &app);
    QObject::connect(notifier, &QSocketNotifier::activated, &app, [&app] {
        char byte = 0;
        [[maybe_unused]] const auto bytesRead = ::read(signalPipe[0], &byte, 1);
        app.quit();
    });
    struct sigaction action
    {
    };
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signalNumber : { SIGTERM, SIGINT, SIGHUP })
        ::sigaction(signalNumber, &action, nullptr);
}

} // namespace platform
