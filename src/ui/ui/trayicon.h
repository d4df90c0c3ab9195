#pragma once

#include <QObject>
#include <QSystemTrayIcon>

class QuivraMacApp;
class WindowManager;

// The menu-bar item: "terminal.fill" once onboarding is complete, "questionmark.circle" before,
// following the flag live; a click opens the panel beside it.
class TrayIcon : public QObject
{
    Q_OBJECT

public:
    TrayIcon(QuivraMacApp *app, WindowManager *windows, QObject *parent = nullptr);
    static QString symbolName(bool hasCompletedOnboarding);
    QString currentSymbol() const { return m_symbol; }

private:
    void updateIcon();

    QuivraMacApp *m_app;
    WindowManager *m_windows;
    QSystemTrayIcon m_tray;
    QString m_symbol;
};
