#pragma once

#include "ui/viewobjects.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QRect>

#include <memory>

class QQmlApplicationEngine;
class QQmlEngine;

// The app's windows by identifier: "panel", "onboarding" and "settings". The QML engine is made
// when a window first opens, so an app with no window open stays small.
class WindowManager : public QObject
{
    Q_OBJECT

public:
    // The objects must outlive the manager: its windows read them until they close.
    explicit WindowManager(const ViewObjects &objects, QObject *parent = nullptr);
    // The windows first, then their engine.
    ~WindowManager() override;

    // Shows the window, raises it and gives it focus.
    void open(const QString &id);
    // The panel as a pop-over beside the tray item's cell, or hidden when it shows; where windows
    // cannot place themselves (Wayland), as a small ordinary window.
    void togglePanel(const QRect &anchor);
    // The same, shown (and moved beside the anchor) whether or not it already shows.
    void popOver(const QRect &anchor);
    bool isPanelVisible() const;
    // The panel as a small ordinary window, beside the first-run window when that is open.
    void openPanelAsWindow();
    // The panel's window, when it is not a pop-over: a tray appeared and takes its place.
    void closePanelWindow();
    // False on Wayland, where the compositor places every window.
    static bool canPlaceWindows();
    QQuickWindow *window(const QString &id) const { return m_windows.value(id); }
    bool hasEngine() const { return m_engine != nullptr; }

    // What every engine that loads the views needs before it loads anything.
    static void prepareEngine(QQmlEngine *engine, const ViewObjects &objects);

private:
    QQuickWindow *create(const QString &id);

    ViewObjects m_objects;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QHash<QString, QPointer<QQuickWindow>> m_windows;
};
