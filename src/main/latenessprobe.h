#pragma once

#include "platform/logging.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

// For the benchmarks (QUIVRA_LATENESS_PROBE=1): how late a 10 ms timer fires, which is how long
// the main loop stalled. Every stall over 20 ms is printed as it happens, so that a benchmark can
// tell its phases apart, and the worst when the app quits.
class LatenessProbe : public QObject
{
public:
    explicit LatenessProbe(QObject *parent = nullptr)
        : QObject(parent)
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setInterval(interval);
        connect(&m_timer, &QTimer::timeout, this, [this] {
            const qint64 late = m_clock.restart() - interval;
            m_worst = std::max(m_worst, late);
            if (late > 20)
                qCInfo(lcConsole).nospace().noquote()
                    << QStringLiteral("[bench] main loop stalled %1 ms").arg(late);
        });
        connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
            qCInfo(lcConsole).nospace().noquote()
                << QStringLiteral("[bench] main loop lateness max %1 ms").arg(m_worst);
        });
        // From the loop's first turn: start-up before it is measured on its own.
        QTimer::singleShot(0, this, [this] {
            m_clock.start();
            m_timer.start();
        });
    }

private:
    static constexpr int interval = 10;
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_worst = 0;
};
