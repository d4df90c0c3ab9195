#include "model/stores.h"

namespace {

// Announce, then store: observers of these stores expect to hear before the value changes.
template<typename Store, typename T> void assign(Store *store, T &member, const T &value)
{
    Q_EMIT store->willChange();
    member = value;
}

template<typename Store, typename T>
void update(Store *store, QList<T> &list, qsizetype index, const std::function<void(T &)> &change)
{
    if (index < 0 || index >= list.size())
        return;
    T element = list.at(index);
    change(element);
    Q_EMIT store->willChange();
    list[index] = std::move(element);
}

} // namespace

void AppStore::setHosts(const QList<HostConfiguration> &hosts)
{
    assign(this, m_hosts, hosts);
}
void AppStore::updateHost(qsizetype index, const std::function<void(HostConfiguration &)> &change)
{
    update(this, m_hosts, index, change);
}
void AppStore::setHasCompletedOnboarding(bool value)
{
    assign(this, m_hasCompletedOnboarding, value);
}
void AppStore::setDefaultThemeName(const QString &value)
{
    assign(this, m_defaultThemeName, value);
}
void AppStore::setFontSize(double value)
{
    assign(this, m_fontSize, value);
}
void AppStore::setFontFamily(const QString &value)
{
    assign(this, m_fontFamily, value);
}

void QuivraStore::setHosts(const QList<Host> &hosts)
{
    assign(this, m_hosts, hosts);
}
void QuivraStore::updateHost(qsizetype index, const std::function<void(Host &)> &change)
{
    update(this, m_hosts, index, change);
}
void QuivraStore::setProjects(const QList<Project> &projects)
{
    assign(this, m_projects, projects);
}
void QuivraStore::updateProject(qsizetype index, const std::function<void(Project &)> &change)
{
    update(this, m_projects, index, change);
}
void QuivraStore::setSessions(const QList<Session> &sessions)
{
    assign(this, m_sessions, sessions);
}
void QuivraStore::updateSession(qsizetype index, const std::function<void(Session &)> &change)
{
    update(this, m_sessions, index, change);
}
void QuivraStore::setHasCompletedOnboarding(bool value)
{
    assign(this, m_hasCompletedOnboarding, value);
}
void QuivraStore::setDefaultThemeName(const QString &value)
{
    assign(this, m_defaultThemeName, value);
}
void QuivraStore::setFontSize(double value)
{
    assign(this, m_fontSize, value);
}
