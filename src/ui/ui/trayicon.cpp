#include "ui/trayicon.h"

#include "app/quivramacapp.h"
#include "ui/symbolprovider.h"
#include "ui/windowmanager.h"

#include <QGuiApplication>
#include <QPalette>

TrayIcon::TrayIcon(QuivraMacApp *app, WindowManager *windows, QObject *parent)
    : QObject(parent)
    , m_app(app)
    , m_windows(windows)
{
    m_tray.setToolTip(QStringLiteral("QuivraMac"));
    connect(app, &QuivraMacApp::hasCompletedOnboardingChanged, this, &TrayIcon::updateIcon);
    connect(&m_tray, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason) {
        m_windows->togglePanel(m_tray.geometry());
    });
    updateIcon();
    m_tray.show();
}

QString TrayIcon::symbolName(bool hasCompletedOnboarding)
{
    return hasCompletedOnboarding ? QStringLiteral("terminal.fill")
                                  : QStringLiteral("questionmark.circle");
}

void TrayIcon::updateIcon()
{
    m_symbol = symbolName(m_app->hasCompletedOnboarding());
    m_tray.setIcon(SymbolProvider::icon(m_symbol, QGuiApplication::palette().windowText().color()));
}
