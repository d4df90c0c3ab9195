#include "ui/uptimewatch.h"

UptimeWatch::UptimeWatch(QObject *parent)
    : QObject(parent)
{ }

UptimeWatch::~UptimeWatch()
{
    follow(nullptr, false);
}

void UptimeWatch::setManager(ServerManager *manager)
{
    if (manager == m_manager)
        return;
    follow(manager, m_active);
    Q_EMIT managerChanged();
}

void UptimeWatch::setActive(bool active)
{
    if (active == m_active)
        return;
    follow(m_manager, active);
    Q_EMIT activeChanged();
}

void UptimeWatch::follow(ServerManager *manager, bool active)
{
    m_manager = manager;
    m_active = active;
    ServerManager *wanted = active ? manager : nullptr;
    if (wanted == m_watched)
        return;
    if (m_watched)
        m_watched->watchUptime(false);
    m_watched = wanted;
    if (m_watched)
        m_watched->watchUptime(true);
}
