#pragma once

#include <QJSEngine>

class OnboardingFlow;
class QQmlEngine;
class QuivraMacApp;
class ServerManager;
class SystemCheck;
class UiController;

// The objects the views read, as the QML singletons ServerManager, App, Ui, Onboarding and
// SystemCheck. C++ makes them before an engine loads anything and gives them to that engine; each
// engine keeps its own set, so a test can give every engine it makes fresh objects. They must
// outlive the engine, which never deletes them.
struct ViewObjects
{
    ServerManager *serverManager = nullptr;
    QuivraMacApp *app = nullptr;
    UiController *ui = nullptr;
    OnboardingFlow *onboarding = nullptr;
    SystemCheck *systemCheck = nullptr;

    void provideTo(QQmlEngine *engine) const;
    // What the engine was given; empty when it was given nothing.
    static ViewObjects of(QQmlEngine *engine);

    // One of them, for a singleton's create(), left in C++'s ownership.
    template<typename T> static T *lend(QQmlEngine *engine, T *ViewObjects::*member)
    {
        T *object = of(engine).*member;
        if (object)
            QJSEngine::setObjectOwnership(object, QJSEngine::CppOwnership);
        else
            missing(engine);
        return object;
    }

private:
    static void missing(QQmlEngine *engine);
};
