#pragma once

#include <QObject>
#include <QPointer>

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

public:
    explicit UiController(ServerManager *serverManager, QObject *parent = nullptr);

    bool autoStartServer() const;
    void setAutoStartServer(bool on);
    QString userName() const;
    bool launchAtLogin() const;
    // Stored under "launchAtLogin" and applied at once.
    void setLaunchAtLogin(bool on);
    QString manualSetupDetails() const;

    // Decides on the server's state at the moment of the call: stopped starts, running stops.
    Q_INVOKABLE void toggleServer();
    // The settings window's Clear: the server log emptied.
    Q_INVOKABLE void clearLogs();
    // Asks for the window through windowRequested.
    Q_INVOKABLE void openWindow(const QString &id);
    Q_INVOKABLE void quit();
    Q_INVOKABLE void copyText(const QString &text);
    Q_INVOKABLE QString uptimeText(double seconds) const;
    // Styled text with the phone's name in bold; the name, sent by the phone, stays plain text.
    Q_INVOKABLE QString deviceConnectingText(const QString &deviceName) const;

Q_SIGNALS:
    void autoStartServerChanged();
    void launchAtLoginChanged();
    void manualSetupDetailsChanged();
    void windowRequested(const QString &id);

private:
    QPointer<ServerManager> m_serverManager;
};
