#pragma once

#include "platform/logging.h"
#include "ui/windowmanager.h"

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

// For the benchmarks (QUIVRA_BENCH_PANEL=warm or cold): how long a request to show the panel
// takes to reach the panel's first frame on screen, printed per request. The request comes from
// `quivractl open`, which takes the path of a tray click from there on. Each frame closes the
// panel again, and with "cold" releases the windows at once, so that the next request measures a
// first open.
class PanelProbe : public QObject
{
public:
    PanelProbe(WindowManager *windows, bool cold)
        : m_windows(windows)
        , m_cold(cold)
    {
        // The panel a desktop without a tray opens at start-up goes the same way, unmeasured.
        if (QQuickWindow *panel = m_windows->window(QStringLiteral("panel")))
            closeAfterFrame(panel, {});
    }

    void show(const std::function<void()> &showPanel)
    {
        QElapsedTimer sinceRequest;
        sinceRequest.start();
        const bool cold = !m_windows->hasEngine();
        showPanel();
        if (QQuickWindow *panel = m_windows->window(QStringLiteral("panel")))
            closeAfterFrame(panel, [sinceRequest, cold] {
                qCInfo(lcConsole).nospace().noquote()
                    << QStringLiteral("[bench] panel first frame %1 ms after the request (%2)")
                           .arg(sinceRequest.elapsed())
                           .arg(cold ? QStringLiteral("cold") : QStringLiteral("warm"));
            });
    }

private:
    void closeAfterFrame(QQuickWindow *panel, const std::function<void()> &report)
    {
        connect(
            panel, &QQuickWindow::frameSwapped, this,
            [this, panel, report] {
                if (report)
                    report();
                // Not within the window's own signal: release() deletes it.
                QTimer::singleShot(0, this, [this, panel = QPointer(panel)] {
                    if (panel)
                        panel->close();
                    if (m_cold)
                        m_windows->release();
                });
            },
            Qt::SingleShotConnection);
    }

    WindowManager *m_windows;
    bool m_cold;
};
