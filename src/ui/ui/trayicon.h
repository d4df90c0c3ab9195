#pragma once

#include "platform/trayhost.h"

#include <QElapsedTimer>
#include <QIcon>
#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>
#include <QTimer>

#include <memory>

class QuivraMacApp;
class ServerManager;
class WindowManager;

// The menu-bar item: the app's symbol once onboarding is complete and a question mark before,
// following the flag live; a click opens the panel beside it, a right-click its menu. It follows
// the desktop's tray as it comes and goes, and while no tray shows it the panel is a window.
class TrayIcon : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged)

public:
    TrayIcon(QuivraMacApp *app, ServerManager *manager, WindowManager *windows,
             QObject *parent = nullptr);
    ~TrayIcon() override;

    // A tray shows the item.
    bool isShown() const { return m_shown; }
    // For a request from outside the tray (a second launch, `quivractl open`): the first-run
    // window while it is open, else the panel where the item was last activated.
    void showPanel();

    // What the item shows, the first that holds: the first run not finished, pairing mode on,
    // the server running, the server stopped (or failing, the reason in the tool tip).
    enum class State { NotSetUp, Pairing, Running, Stopped };
    static State state(bool hasCompletedOnboarding, bool pairing, bool running);
    // The theme's name for the symbol; the desktop recolours "-symbolic" icons for its panel.
    static QString iconName(State state);
    // Whether the tray recolours symbolic icons to suit its panel: StatusNotifierItem hosts of
    // the desktops known to (KDE, GNOME). Others, and every XEmbed tray, show pixels as they are.
    static bool trayRecoloursSymbolicIcons(bool statusNotifierItem, const QString &desktops);
    // The themed symbol for a tray that recolours it where the theme has it (installed), else
    // drawings in a mid tone that read on light and dark panels alike.
    static QIcon icon(State state, bool recoloured);
    // The server's state, why it is not running when something failed, the first run when it is
    // not finished and, while pairing (secondsLeft >= 0), the code's time left.
    struct Status
    {
        bool setUp = true;
        bool running = false;
        int port = 2022;
        QString failure;
        int secondsLeft = -1;
    };
    static QString toolTip(const Status &status);

Q_SIGNALS:
    void shownChanged();

private:
    void followHost();
    void createItem();
    void onActivated(QSystemTrayIcon::ActivationReason reason);
    // Where the item is: its geometry where the tray says, else the cell under the pointer.
    QRect itemCell() const;
    void openPanel();
    void update();

    QuivraMacApp *m_app;
    ServerManager *m_manager;
    WindowManager *m_windows;
    TrayHost m_host;
    QMenu m_menu;
    // Made once a tray exists: Qt picks the protocol (StatusNotifierItem or XEmbed) when the item
    // is made and keeps it, so the item only counts as shown while a tray of that kind is there.
    std::unique_ptr<QSystemTrayIcon> m_tray;
    bool m_statusNotifierItem = false;
    bool m_shown = false;
    bool m_followed = false;
    bool m_everShown = false;
    QTimer m_pairingTick;
    State m_state = State::NotSetUp;
    // The item's cell at its last activation, where the menu's entries open the panel too.
    QRect m_cell;
    // Since an activation last opened the panel: a second click within the double-click
    // interval leaves it open.
    QElapsedTimer m_openedByClick;
};
