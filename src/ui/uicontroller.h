#pragma once

#include <QObject>
#include <QPointer>

class QuivraMacApp;
class ServerManager;
class WindowManager;

// What the views may do beyond reading ServerManager: the panel's rules, window requests, the
// clipboard, preferences and the time formats. Exposed to QML as "ui".
class UiController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool autoStartServer READ autoStartServer WRITE setAutoStartServer NOTIFY
                   autoStartServerChanged)

public:
    UiController(ServerManager *serverManager, WindowManager *windows, QObject *parent = nullptr);

    bool autoStartServer() const;
    void setAutoStartServer(bool on);

    // Decides on the server's state at the moment of the call: stopped starts, running stops.
    Q_INVOKABLE void toggleServer();
    Q_INVOKABLE void openWindow(const QString &id);
    Q_INVOKABLE void quit();
    Q_INVOKABLE void copyText(const QString &text);
    Q_INVOKABLE QString uptimeText(double seconds) const;
    Q_INVOKABLE QString countdownText(double seconds) const;

Q_SIGNALS:
    void autoStartServerChanged();

private:
    QPointer<ServerManager> m_serverManager;
    WindowManager *m_windows;
};
