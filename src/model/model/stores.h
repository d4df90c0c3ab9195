#pragma once

#include "model/records.h"

#include <QObject>

#include <functional>

// The application-level store of configured hosts and display preferences. Every assignment,
// an in-place change of one list element included, first announces the change through
// willChange() and then stores the value; observers re-read what they need. In memory only.
class AppStore : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool hasCompletedOnboarding READ hasCompletedOnboarding WRITE
                   setHasCompletedOnboarding NOTIFY willChange)
    Q_PROPERTY(
        QString defaultThemeName READ defaultThemeName WRITE setDefaultThemeName NOTIFY willChange)
    Q_PROPERTY(double fontSize READ fontSize WRITE setFontSize NOTIFY willChange)
    Q_PROPERTY(QString fontFamily READ fontFamily WRITE setFontFamily NOTIFY willChange)

public:
    using QObject::QObject;

    QList<HostConfiguration> hosts() const { return m_hosts; }
    void setHosts(const QList<HostConfiguration> &hosts);
    void updateHost(qsizetype index, const std::function<void(HostConfiguration &)> &change);

    bool hasCompletedOnboarding() const { return m_hasCompletedOnboarding; }
    void setHasCompletedOnboarding(bool value);
    QString defaultThemeName() const { return m_defaultThemeName; }
    void setDefaultThemeName(const QString &value);
    double fontSize() const { return m_fontSize; }
    void setFontSize(double value);
    QString fontFamily() const { return m_fontFamily; }
    void setFontFamily(const QString &value);

Q_SIGNALS:
    void willChange();

private:
    QList<HostConfiguration> m_hosts;
    bool m_hasCompletedOnboarding = false;
    QString m_defaultThemeName;
    double m_fontSize = 0;
    QString m_fontFamily;
};

// The fuller store of hosts, their projects and their sessions; announces like AppStore.
class QuivraStore : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool hasCompletedOnboarding READ hasCompletedOnboarding WRITE
                   setHasCompletedOnboarding NOTIFY willChange)
    Q_PROPERTY(
        QString defaultThemeName READ defaultThemeName WRITE setDefaultThemeName NOTIFY willChange)
    Q_PROPERTY(double fontSize READ fontSize WRITE setFontSize NOTIFY willChange)

public:
    using QObject::QObject;

    QList<Host> hosts() const { return m_hosts; }
    void setHosts(const QList<Host> &hosts);
    void updateHost(qsizetype index, const std::function<void(Host &)> &change);
    QList<Project> projects() const { return m_projects; }
    void setProjects(const QList<Project> &projects);
    void updateProject(qsizetype index, const std::function<void(Project &)> &change);
    QList<Session> sessions() const { return m_sessions; }
    void setSessions(const QList<Session> &sessions);
    void updateSession(qsizetype index, const std::function<void(Session &)> &change);

    bool hasCompletedOnboarding() const { return m_hasCompletedOnboarding; }
    void setHasCompletedOnboarding(bool value);
    QString defaultThemeName() const { return m_defaultThemeName; }
    void setDefaultThemeName(const QString &value);
    double fontSize() const { return m_fontSize; }
    void setFontSize(double value);

Q_SIGNALS:
    void willChange();

private:
    QList<Host> m_hosts;
    QList<Project> m_projects;
    QList<Session> m_sessions;
    bool m_hasCompletedOnboarding = false;
    QString m_defaultThemeName;
    double m_fontSize = 0;
};

// Carries the prefix of the keychain service names of session items.
class SessionKeychainManager
{
public:
    explicit SessionKeychainManager(QString servicePrefix)
        : m_servicePrefix(std::move(servicePrefix))
    { }
    QString servicePrefix() const { return m_servicePrefix; }

private:
    const QString m_servicePrefix;
};
