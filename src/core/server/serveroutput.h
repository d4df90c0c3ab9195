#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

#include <chrono>

class QProcess;

// Takes the server's output as it comes. While it keeps coming it is taken at most once per
// pause, so that a chatty server costs a few large entries instead of one per small write: every
// entry is also a console write and a log change. A lone line still arrives at once.
class ServerOutputReader : public QObject
{
    Q_OBJECT

public:
    explicit ServerOutputReader(QProcess *process,
                                std::chrono::milliseconds pause = std::chrono::milliseconds(2));

    // Takes what is left now, for the exit notice to come after it.
    void flush();

Q_SIGNALS:
    void received(const QByteArray &chunk);

private:
    void take();

    static constexpr qint64 maxChunk = 256 * 1024;

    QProcess *m_process;
    std::chrono::milliseconds m_interval;
    QTimer m_pause;
};
