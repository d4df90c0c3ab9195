#pragma once

#include "app/quivramacapp.h"
#include "onboarding/onboardingflow.h"
#include "onboarding/systemcheck.h"
#include "pairing/pairingsession.h"
#include "server/servermanager.h"
#include "ui/uicontroller.h"
#include "ui/viewobjects.h"

#include <QQmlEngine>

// How module QuivraMac.Ui sees the objects its views read. Core and app stay free of QtQml, so
// their types are declared here. Each is a singleton whose instance C++ made before the engine
// loaded anything; create() hands over the one given to that engine.

struct ServerManagerForeign
{
    Q_GADGET
    QML_FOREIGN(ServerManager)
    QML_NAMED_ELEMENT(ServerManager)
    QML_SINGLETON

public:
    static ServerManager *create(QQmlEngine *engine, QJSEngine *)
    {
        return ViewObjects::lend(engine, &ViewObjects::serverManager);
    }
};

struct QuivraMacAppForeign
{
    Q_GADGET
    QML_FOREIGN(QuivraMacApp)
    QML_NAMED_ELEMENT(App)
    QML_SINGLETON

public:
    static QuivraMacApp *create(QQmlEngine *engine, QJSEngine *)
    {
        return ViewObjects::lend(engine, &ViewObjects::app);
    }
};

struct UiControllerForeign
{
    Q_GADGET
    QML_FOREIGN(UiController)
    QML_NAMED_ELEMENT(Ui)
    QML_SINGLETON

public:
    static UiController *create(QQmlEngine *engine, QJSEngine *)
    {
        return ViewObjects::lend(engine, &ViewObjects::ui);
    }
};

// Its enums too: Onboarding.WaitingForDevice.
struct OnboardingFlowForeign
{
    Q_GADGET
    QML_FOREIGN(OnboardingFlow)
    QML_NAMED_ELEMENT(Onboarding)
    QML_SINGLETON

public:
    static OnboardingFlow *create(QQmlEngine *engine, QJSEngine *)
    {
        return ViewObjects::lend(engine, &ViewObjects::onboarding);
    }
};

struct SystemCheckForeign
{
    Q_GADGET
    QML_FOREIGN(SystemCheck)
    QML_NAMED_ELEMENT(SystemCheck)
    QML_SINGLETON

public:
    static SystemCheck *create(QQmlEngine *engine, QJSEngine *)
    {
        return ViewObjects::lend(engine, &ViewObjects::systemCheck);
    }
};

// The type of ServerManager.pairingSession, which countdowns render.
struct PairingSessionForeign
{
    Q_GADGET
    QML_FOREIGN(PairingSession)
    QML_NAMED_ELEMENT(PairingSession)
    QML_UNCREATABLE("the server manager owns the one pairing session")
};
