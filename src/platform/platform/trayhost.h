#pragma once

#include <QObject>

#include <memory>

// Whether the desktop has a tray for the app's item, followed while hosts come and go: a
// StatusNotifierItem watcher with a host on the session bus, or the desktop's own tray (an XEmbed
// tray manager on X11, the menu bar on macOS). Changes arrive on the main thread.
class TrayHost : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool available READ isAvailable NOTIFY availableChanged)
    Q_PROPERTY(bool statusNotifier READ hasStatusNotifierHost NOTIFY availableChanged)
    Q_PROPERTY(bool nativeTray READ hasNativeTray NOTIFY availableChanged)

public:
    // watchNative: also follow the desktop's own tray; off where the windows do not use it (an
    // app on Wayland cannot dock into an X11 tray).
    explicit TrayHost(bool watchNative, QObject *parent = nullptr);
    ~TrayHost() override;

    bool isAvailable() const { return m_statusNotifier || m_native; }
    bool hasStatusNotifierHost() const { return m_statusNotifier; }
    bool hasNativeTray() const { return m_native; }

    static constexpr auto watcherService = "org.kde.StatusNotifierWatcher";

Q_SIGNALS:
    void availableChanged();

private Q_SLOTS:
    void checkStatusNotifier();

private:
    void setStatusNotifier(bool on);
    void setNative(bool on);
    // Per OS: starts following the native tray, calling setNative from the main thread.
    std::unique_ptr<QObject> watchNativeTray();

    std::unique_ptr<QObject> m_nativeWatch;
    bool m_statusNotifier = false;
    bool m_native = false;
};
