#include "platform/trayhost.h"

#include <QSocketNotifier>
#include <QTimer>

#include <xcb/xcb.h>

namespace {

// The XEmbed tray manager of the default display: whoever owns the _NET_SYSTEM_TRAY_S<screen>
// selection. A manager announces itself with a MANAGER message to the root window's structure
// listeners and leaves by destroying its window, so both arrive as events on a connection of our
// own; a slow re-check covers managers that skip the announcement.
class XEmbedTrayWatch : public QObject
{
public:
    explicit XEmbedTrayWatch(std::function<void(bool)> onChange)
        : m_onChange(std::move(onChange))
    {
        int screenNumber = 0;
        m_connection = xcb_connect(nullptr, &screenNumber);
        if (xcb_connection_has_error(m_connection))
            return;
        xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
        for (int i = 0; i < screenNumber && screens.rem; ++i)
            xcb_screen_next(&screens);
        listen(screens.data->root);
        const QByteArray name = "_NET_SYSTEM_TRAY_S" + QByteArray::number(screenNumber);
        xcb_intern_atom_reply_t *atom = xcb_intern_atom_reply(
            m_connection, xcb_intern_atom(m_connection, 0, name.size(), name.constData()), nullptr);
        m_selection = atom ? atom->atom : xcb_atom_t(XCB_ATOM_NONE);
        free(atom);

        m_notifier =
            new QSocketNotifier(xcb_get_file_descriptor(m_connection), QSocketNotifier::Read, this);
        connect(m_notifier, &QSocketNotifier::activated, this, &XEmbedTrayWatch::drain);
        m_recheck.setInterval(10000);
        connect(&m_recheck, &QTimer::timeout, this, &XEmbedTrayWatch::check);
        m_recheck.start();
        check();
    }

    ~XEmbedTrayWatch() override
    {
        delete m_notifier;
        xcb_disconnect(m_connection);
    }

private:
    void listen(xcb_window_t window)
    {
        const uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, window, XCB_CW_EVENT_MASK, &mask);
    }

    void drain()
    {
        bool any = false;
        while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
            any = true;
            free(event);
        }
        if (any)
            check();
    }

    void check()
    {
        if (m_selection == XCB_ATOM_NONE || xcb_connection_has_error(m_connection))
            return;
        xcb_get_selection_owner_reply_t *reply = xcb_get_selection_owner_reply(
            m_connection, xcb_get_selection_owner(m_connection, m_selection), nullptr);
        const xcb_window_t owner = reply ? reply->owner : xcb_window_t(XCB_WINDOW_NONE);
        free(reply);
        if (owner != XCB_WINDOW_NONE && owner != m_owner)
            listen(owner);
        xcb_flush(m_connection);
        m_owner = owner;
        m_onChange(owner != XCB_WINDOW_NONE);
    }

    std::function<void(bool)> m_onChange;
    xcb_connection_t *m_connection = nullptr;
    xcb_atom_t m_selection = XCB_ATOM_NONE;
    xcb_window_t m_owner = XCB_WINDOW_NONE;
    QSocketNotifier *m_notifier = nullptr;
    QTimer m_recheck;
};

} // namespace

std::unique_ptr<QObject> TrayHost::watchNativeTray()
{
    return std::make_unique<XEmbedTrayWatch>([this](bool on) { setNative(on); });
}
