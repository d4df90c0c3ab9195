#pragma once

#include "server/clocktimer.h"
#include "ui/viewobjects.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QRect>

#include <chrono>
#include <memory>

class QQmlApplicationEngine;
class QQmlEngine;

// The app's windows by identifier: "panel", "onboarding" and "settings". The QML engine is made
// when a window first opens and let go again a while after the last one closed, so an app that
// sits in the tray unlooked-at stays small.
class WindowManager : public QObject
{
    Q_OBJECT

public:
    // How long the windows stay loaded after the last one closed. A panel closed and clicked open
    // again within half a minute (a second look, a menu entry after the item) opens warm; after
    // that the user has moved on, and a tray app lives for days in the state it is left in.
    static constexpr std::chrono::seconds releaseDelay { 30 };

    // The objects must outlive the manager: its windows read them until they close. The release
    // is measured on `clock`, looked at at least every `longestSleep` (tests move the clock).
    explicit WindowManager(const ViewObjects &objects,
                           ClockTimer::Clock clock = std::chrono::steady_clock::now,
                           std::chrono::milliseconds longestSleep = releaseDelay,
                           QObject *parent = nullptr);
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

    // Deletes the windows and their engine, with the engine's caches and the scene graph, and
    // gives the freed memory back to the system; the next open() loads them again. Nothing
    // happens while a window shows.
    void release();

    // What every engine that loads the views needs before it loads anything.
    static void prepareEngine(QQmlEngine *engine, const ViewObjects &objects);

Q_SIGNALS:
    void released();

private:
    QQuickWindow *create(const QString &id);
    bool anyVisible() const;
    // Counts down to the release while no window shows.
    void followVisibility();

    ViewObjects m_objects;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QHash<QString, QPointer<QQuickWindow>> m_windows;
    ClockTimer m_release;
};
