#pragma once

#include "server/servermanager.h"

#include <QObject>

#include <memory>

// The application object: owns the one ServerManager for the life of the process and the
// persisted "hasCompletedOnboarding" flag that the windows and the tray icon follow.
class QuivraMacApp : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool hasCompletedOnboarding READ hasCompletedOnboarding WRITE
                   setHasCompletedOnboarding NOTIFY hasCompletedOnboardingChanged)

public:
    explicit QuivraMacApp(ServerEnvironment environment = {}, QObject *parent = nullptr);

    // Built on first use; its constructor runs the start-up order (clean-up, automatic start).
    ServerManager &serverManager();

    bool hasCompletedOnboarding() const { return m_hasCompletedOnboarding; }
    void setHasCompletedOnboarding(bool completed);

Q_SIGNALS:
    void hasCompletedOnboardingChanged();

private:
    ServerEnvironment m_environment;
    std::unique_ptr<ServerManager> m_serverManager;
    bool m_hasCompletedOnboarding = false;
};
