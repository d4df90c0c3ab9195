#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>

class QSocketNotifier;

namespace net {

// Tells when this machine's addresses may have changed: an interface came or went, or an address
// was added or removed (a network joined after the app started at login). The system says so;
// nothing polls. A burst of changes, as joining a network brings, is told once after it settles.
class AddressWatcher : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds settleTime { 300 };

    explicit AddressWatcher(QObject *parent = nullptr);
    ~AddressWatcher() override;

    // False where the system could not be asked to tell; addresses are then read only when the
    // user switches pairing on.
    bool isWatching() const { return m_watching; }

Q_SIGNALS:
    void changed();

private:
    void start();
    void stop();

    bool m_watching = false;
    int m_fd = -1;
    QSocketNotifier *m_notifier = nullptr;
    QTimer m_settle;
};

} // namespace net
