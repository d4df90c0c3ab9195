#pragma once

#include "server/servermanager.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

// Keeps the server's uptime ticking while the view that shows it is on screen; otherwise the
// uptime is only worked out when read, and an idle app does not wake for it.
class UptimeWatch : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ServerManager *manager READ manager WRITE setManager NOTIFY managerChanged)
    // Bound to the visibility of the view that shows the uptime.
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)

public:
    explicit UptimeWatch(QObject *parent = nullptr);
    ~UptimeWatch() override;

    ServerManager *manager() const { return m_manager; }
    void setManager(ServerManager *manager);
    bool isActive() const { return m_active; }
    void setActive(bool active);

Q_SIGNALS:
    void managerChanged();
    void activeChanged();

private:
    void follow(ServerManager *manager, bool active);

    QPointer<ServerManager> m_manager;
    bool m_active = false;
    // The manager this holds a watch on, if any.
    QPointer<ServerManager> m_watched;
};
