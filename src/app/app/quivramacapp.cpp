#include "app/quivramacapp.h"

#include "platform/userdefaults.h"

namespace {
const QString onboardingKey = QStringLiteral("hasCompletedOnboarding");
}

QuivraMacApp::QuivraMacApp(ServerEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_environment(std::move(environment))
    , m_hasCompletedOnboarding(userdefaults::boolValue(onboardingKey))
{ }

ServerManager &QuivraMacApp::serverManager()
{
    if (!m_serverManager)
        m_serverManager = std::make_unique<ServerManager>(m_environment);
    return *m_serverManager;
}

void QuivraMacApp::setHasCompletedOnboarding(bool completed)
{
    userdefaults::setValue(onboardingKey, completed);
    if (completed == m_hasCompletedOnboarding)
        return;
    m_hasCompletedOnboarding = completed;
    Q_EMIT hasCompletedOnboardingChanged();
}
