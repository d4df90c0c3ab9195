#pragma once

#include "platform/wording.h"

#include <QObject>
#include <QQmlEngine>

// The screens' sentences that name this machine or its platform, in this platform's words.
class ScreenTexts : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Wording)
    QML_SINGLETON
    Q_PROPERTY(QString machineLabel READ machineLabel CONSTANT)
    Q_PROPERTY(QString welcomeTitle READ welcomeTitle CONSTANT)
    Q_PROPERTY(QString welcomeBody READ welcomeBody CONSTANT)
    Q_PROPERTY(QString explanationBody READ explanationBody CONSTANT)
    Q_PROPERTY(QString explanationTrayRow READ explanationTrayRow CONSTANT)
    Q_PROPERTY(QString etserverInstallCommand READ etserverInstallCommand CONSTANT)
    Q_PROPERTY(QString setupWindowTitle READ setupWindowTitle CONSTANT)
    Q_PROPERTY(QString settingsWindowTitle READ settingsWindowTitle CONSTANT)
    Q_PROPERTY(bool setupWindowFrameless READ setupWindowFrameless CONSTANT)
    Q_PROPERTY(QString statusRowLabel READ statusRowLabel CONSTANT)

public:
    using QObject::QObject;

    static QString machineLabel() { return wording::machineLabel(); }
    static QString welcomeTitle() { return wording::welcomeTitle(); }
    static QString welcomeBody() { return wording::welcomeBody(); }
    static QString explanationBody() { return wording::explanationBody(); }
    static QString explanationTrayRow() { return wording::explanationTrayRow(); }
    static QString etserverInstallCommand() { return wording::etserverInstallCommand(); }
    static QString setupWindowTitle() { return wording::setupWindowTitle(); }
    static QString settingsWindowTitle() { return wording::settingsWindowTitle(); }
    static bool setupWindowFrameless() { return wording::setupWindowFrameless(); }
    static QString statusRowLabel() { return wording::statusRowLabel(); }
    Q_INVOKABLE static QString connectedToThisMachine(const QString &deviceName)
    {
        return wording::connectedToThisMachine().arg(deviceName);
    }
};
