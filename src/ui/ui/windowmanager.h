#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QRect>

#include <functional>
#include <memory>

class QQmlApplicationEngine;
class QQmlContext;

// The app's windows by identifier: "panel", "onboarding" and "settings". The QML engine is made
// when a window first opens, so an app with no window open stays small.
class WindowManager : public QObject
{
    Q_OBJECT

public:
    // Gives the context the objects the views read ("serverManager", "app", "ui").
    using ContextSetup = std::function<void(QQmlContext *)>;

    explicit WindowManager(ContextSetup setup, QObject *parent = nullptr);
    ~WindowManager() override;

    // Shows the window, raises it and gives it focus.
    void open(const QString &id);
    // The panel as a pop-over beside the tray icon, or (without a tray) as a small window.
    void togglePanel(const QRect &besideIcon);
    void openPanelAsWindow();
    QQuickWindow *window(const QString &id) const { return m_windows.value(id); }
    bool hasEngine() const { return m_engine != nullptr; }

    static void registerTypes();

private:
    QQuickWindow *create(const QString &id);

    ContextSetup m_setup;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QHash<QString, QPointer<QQuickWindow>> m_windows;
};
