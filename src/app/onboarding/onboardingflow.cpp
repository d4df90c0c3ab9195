#include "onboarding/onboardingflow.h"

#include "app/quivramacapp.h"
#include "platform/autostart.h"
#include "platform/wording.h"
#include "server/servermanager.h"

OnboardingFlow::OnboardingFlow(ServerManager *serverManager, QuivraMacApp *app, QObject *parent)
    : QObject(parent)
    , m_serverManager(serverManager)
    , m_app(app)
{
    if (!serverManager)
        return;
    connect(&serverManager->phones(), &PhoneService::paired, this,
            [this](const PairedDevice &device) { onPaired(device.name); });
    connect(serverManager, &ServerManager::pairingTokenChanged, this, &OnboardingFlow::codeChanged);
}

QString OnboardingFlow::code() const
{
    return m_serverManager ? m_serverManager->pairingToken() : QString();
}

QString OnboardingFlow::title(ErrorKind kind)
{
    switch (kind) {
    case WrongCode:
        return QStringLiteral("Wrong code");
    case Timeout:
        return QStringLiteral("Connection timed out");
    case ConnectionFailed:
        return QStringLiteral("Connection failed");
    case NetworkMismatch:
        return QStringLiteral("Network mismatch");
    }
    return {};
}

QString OnboardingFlow::message(ErrorKind kind, const QString &macNetwork)
{
    switch (kind) {
    case NetworkMismatch:
        return wording::networkMismatch().arg(macNetwork);
    case WrongCode:
        return tr("The code entered on your iPhone didn't match.");
    case Timeout:
        return tr("No device connected within the time limit.");
    case ConnectionFailed:
        return wording::connectionFailed();
    }
    return {};
}

void OnboardingFlow::appear()
{
    setStep(Welcome);
}

void OnboardingFlow::setStep(Step step)
{
    m_step = step;
    ++m_serial;
    Q_EMIT stepChanged();
}

void OnboardingFlow::startPairing()
{
    if (!m_serverManager)
        return;
    // Silently, unlike the user's switch: a fresh code with its own five minutes, the address
    // left as it is and nothing logged.
    m_serverManager->pairingSession()->switchOn();
    waitForDevice();
}

void OnboardingFlow::renewCode()
{
    if (!m_serverManager)
        return;
    m_serverManager->pairingSession()->renew();
    waitForDevice();
}

void OnboardingFlow::waitForDevice()
{
    m_pairingKind = WaitingForDevice;
    m_expiresIn = codeLifetime;
    setStep(Pairing);
}

void OnboardingFlow::showPairingState(PairingKind kind, const QString &deviceName, ErrorKind error,
                                      const QString &macNetwork)
{
    m_pairingKind = kind;
    m_deviceName = deviceName;
    m_errorKind = error;
    m_macNetwork = macNetwork;
    setStep(Pairing);
}

void OnboardingFlow::onPaired(const QString &deviceName)
{
    if (m_step != Pairing)
        return;
    m_deviceName = deviceName;
    setStep(Success);
}

void OnboardingFlow::finish()
{
    if (m_app)
        m_app->setHasCompletedOnboarding(true);
    platform::applyLaunchAtLoginPreference();
    Q_EMIT dismiss();
}
