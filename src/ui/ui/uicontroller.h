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

public:
    explicit UiController(ServerManager *serverManager, QObject *parent = nullptr);

    bool autoStartServer() const;
    void setAutoStartServer(bool on);
    QString userName() const;
    bool launchAtLogin() const;
    // Stored under "launchAtLogin" and applied at once.
    void setLaunchAtLogin(bool on);

    // Decides on the server's state at the moment of the call: stopped starts, running stops.
    Q_INVOKABLE void toggleServer();
    // Asks for the window through windowRequested.
    Q_INVOKABLE void openWindow(const QString &id);
    Q_INVOKABLE void quit();
    Q_INVOKABLE void copyText(const QString &text);
    Q_INVOKABLE QString uptimeText(double seconds) const;
    Q_INVOKABLE QString countdownText(double seconds) const;

Q_SIGNALS:
    void autoStartServerChanged();
    void launchAtLoginChanged();
    void windowRequested(const QString &id);

private:
    QPointer<ServerManager> m_serverManager;
};
