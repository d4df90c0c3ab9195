#pragma once

#include "diagnostics/checks.h"
#include "net/localaddress.h"
#include "pairing/pairingsession.h"
#include "platform/bundlepaths.h"
#include "platform/processtable.h"
#include "server/clocktimer.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>

// What ServerManager takes from the machine. The defaults are the real machine; tests replace
// pieces (a fake etserver, a guarded process table, a short uptime tick, a free port).
struct ServerEnvironment
{
    std::function<QString()> locateExecutable = platform::findEtserver;
    std::function<QString()> supportDirectory = platform::supportDirectory;
    std::function<QString()> localIP = net::getLocalIP;
    std::shared_ptr<platform::ProcessTable> processes = platform::ProcessTable::system();
    QString pgrepProgram = QStringLiteral("/usr/bin/pgrep");
    // Where etserver listens for its terminals; tests give one of their own.
    QString serverFifo = QStringLiteral("/tmp/et.fifo");
    std::chrono::milliseconds uptimeInterval { 1000 };
    // 0: any free port (tests), read back from the listener.
    quint16 pairingPort = 8080;
    // Whether the pairing listener registers itself with the DNS-SD daemon.
    bool advertise = true;
    // Measures the pairing code's lifetime; tests move it forward.
    PairingSession::Clock now = std::chrono::system_clock::now;
    // Measures the pauses before a restart and between checks of a taken port; tests move it,
    // and shorten how long a pause sleeps before it looks at the clock again.
    ClockTimer::Clock steadyNow = std::chrono::steady_clock::now;
    std::chrono::milliseconds longestSleep = std::chrono::hours(1);
    // What the status report's checks read, and where the SSH daemon is probed.
    DiagnosticSystem diagnostics = DiagnosticSystem::real();
    QString sshHost = QStringLiteral("127.0.0.1");
    quint16 sshPort = 22;
};
