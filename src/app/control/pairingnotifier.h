#pragma once

#include <QObject>

class ServerManager;
struct PairedDevice;

// Tells the desktop when a phone has paired, through the freedesktop notification service.
// Where no such service runs it says so once and carries on.
class PairingNotifier : public QObject
{
    Q_OBJECT

public:
    explicit PairingNotifier(ServerManager *manager, QObject *parent = nullptr);

private:
    void notify(const PairedDevice &device);

    bool m_toldUnavailable = false;
};
