#pragma once

#include <QObject>

#include <functional>

// The app's windows on the session bus, org.quivra.QuivraMac.Windows at /Windows: how a second
// launch or quivractl brings the running app to the screen.
class WindowService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.quivra.QuivraMac.Windows")

public:
    static constexpr auto objectPath = "/Windows";
    static constexpr auto interfaceName = "org.quivra.QuivraMac.Windows";

    // Exported on the session bus, which must already carry the app's name. Without a display
    // the app has no windows to show and leaves `show` empty.
    explicit WindowService(std::function<void()> show, QObject *parent = nullptr);

    enum class Answer { Shown, Headless, NoAnswer };
    // Asks the running instance to show its panel.
    static Answer askToShowPanel();
    // Why nothing appeared, and how to switch to an instance on this desktop.
    static QString headlessMessage();

public Q_SLOTS:
    // Shows the panel, or the first-run window while it is open; false when there is no display.
    bool ShowPanel();

private:
    std::function<void()> m_show;
};
