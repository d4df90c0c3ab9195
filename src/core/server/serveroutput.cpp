#include "server/serveroutput.h"

#include <QProcess>

ServerOutputReader::ServerOutputReader(QProcess *process, std::chrono::milliseconds pause)
    : QObject(process)
    , m_process(process)
    , m_interval(pause)
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &ServerOutputReader::take);
    connect(process, &QProcess::readyReadStandardOutput, this, [this] {
        if (!m_pause.isActive())
            take();
    });
}

void ServerOutputReader::flush()
{
    while (m_process->bytesAvailable() > 0)
        take();
    m_pause.stop();
}

void ServerOutputReader::take()
{
    // A flood is taken a bounded piece at a time, ending at a line break so that no character
    // is cut, and the rest on the loop's next turn: no long stall, no large buffer.
    const qint64 available = m_process->bytesAvailable();
    if (available == 0)
        return;
    qint64 size = available;
    if (available > maxChunk) {
        const qsizetype lineEnd = m_process->peek(maxChunk).lastIndexOf('\n');
        if (lineEnd >= 0)
            size = lineEnd + 1;
    }
    const QByteArray chunk = m_process->read(size);
    m_pause.start(m_process->bytesAvailable() > 0 ? std::chrono::milliseconds(0) : m_interval);
    Q_EMIT received(chunk);
}
