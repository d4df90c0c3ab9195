#pragma once

#include <QObject>

#include <memory>

namespace platform {

// Signs that the DNS-SD daemon may have started, for a registration that waits for it, so that
// the wait needs no polling: on Linux the system bus's socket appearing and the daemon's name
// appearing on that bus. On macOS the daemon is part of the system and there are none.
class DnsSdDaemonWatch : public QObject
{
    Q_OBJECT

public:
    explicit DnsSdDaemonWatch(QObject *parent = nullptr);
    ~DnsSdDaemonWatch() override;

    // Watches from now until stop(); the daemon may already be there.
    void start();
    void stop();

Q_SIGNALS:
    void mayHaveStarted();

private:
    struct Watches;
    std::unique_ptr<Watches> m_watches;
};

} // namespace platform
