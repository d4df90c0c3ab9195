#pragma once

#include "platform/console.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

// For the benchmarks (QUIVRA_LATENESS_PROBE=1): how late a 10 ms timer fires at worst, which is
// how long the main loop stalled. Printed when the app quits.
class LatenessProbe : public QObject
{
public:
    explicit LatenessProbe(QObject *parent = nullptr)
        : QObject(parent)
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setInterval(10);
        connect(&m_timer, &QTimer::timeout, this,
                [this] { m_worst = std::max(m_worst, m_clock.restart() - 10); });
        connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
            console::line(QStringLiteral("[bench] main loop lateness max %1 ms").arg(m_worst));
        });
        m_clock.start();
        m_timer.start();
    }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_worst = 0;
};
