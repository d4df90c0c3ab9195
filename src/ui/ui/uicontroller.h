#pragma once

#include "ui/devicelist.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

class ServerManager;

// What the views may do beyond reading ServerManager: the panel's rules, window requests, the
// clipboard, preferences and the time formats. The QML singleton Ui.
class UiController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool autoStartServer READ autoStartServer WRITE setAutoStartServer NOTIFY
                   autoStartServerChanged)
    Q_PROPERTY(QString userName READ userName CONSTANT)
    Q_PROPERTY(
        bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY launchAtLoginChanged)
    // What a person enters in the phone app to add this computer by hand.
    Q_PROPERTY(QString manualSetupDetails READ manualSetupDetails NOTIFY manualSetupDetailsChanged)
    Q_PROPERTY(DeviceList *devices READ devices CONSTANT)
    // The last start found no etserver: the views offer the steps to install it.
    Q_PROPERTY(bool etserverMissing READ etserverMissing NOTIFY etserverMissingChanged)
    // Whether the views may move the keyboard focus themselves. Qt 6.4's Wayland client crashes
    // on a focus change where the compositor offers no keyboard (a headless one, say).
    Q_PROPERTY(bool canMoveFocus READ canMoveFocus CONSTANT)

public:
    explicit UiController(ServerManager *serverManager, QObject *parent = nullptr);

    bool autoStartServer() const;
    void setAutoStartServer(bool on);
    QString userName() const;
    bool launchAtLogin() const;
    // Stored under "launchAtLogin" and applied at once.
    void setLaunchAtLogin(bool on);
    QString manualSetupDetails() const;
    DeviceList *devices() { return &m_devices; }
    bool etserverMissing() const;
    static bool canMoveFocus();

    enum SettingsTab { GeneralTab, LogsTab, DevicesTab };
    Q_ENUM(SettingsTab)

    // Decides on the server's state at the moment of the call: stopped starts, running stops.
    Q_INVOKABLE void toggleServer();
    // The settings window's Clear: the server log emptied.
    Q_INVOKABLE void clearLogs();
    // Asks for the window through windowRequested.
    Q_INVOKABLE void openWindow(const QString &id);
    // The settings window on that tab, whether it was open or not.
    Q_INVOKABLE void openSettings(SettingsTab tab);
    // The tab asked for by the last openSettings, once: the settings window takes it when it
    // shows, so that a window opened any other way (the tray menu, quivractl) starts on General.
    Q_INVOKABLE int takeSettingsTab();
    // The settings window with the steps to install Eternal Terminal over it: the panel closes
    // as soon as it loses focus, so they cannot be a sheet of its own.
    Q_INVOKABLE void openInstallSteps();
    // Whether the last request asked for those steps, once, as takeSettingsTab.
    Q_INVOKABLE bool takeInstallSteps();
    Q_INVOKABLE void quit();
    Q_INVOKABLE void copyText(const QString &text);
    Q_INVOKABLE QString uptimeText(double seconds) const;
    // Styled text with the phone's name in bold; the name, sent by the phone, stays plain text.
    Q_INVOKABLE QString deviceConnectingText(const QString &deviceName) const;
    // "Someone is guessing the code from ..." for ServerManager.pairingGuessers; empty for none.
    Q_INVOKABLE QString guessingText(const QStringList &addresses) const;

Q_SIGNALS:
    void autoStartServerChanged();
    void launchAtLoginChanged();
    void manualSetupDetailsChanged();
    void windowRequested(const QString &id);
    void settingsTabRequested();
    void etserverMissingChanged();

private:
    QPointer<ServerManager> m_serverManager;
    DeviceList m_devices;
    int m_settingsTab = GeneralTab;
    bool m_installSteps = false;
};
