#include "platform/console.h"

#include <QMutex>

#include <cstdio>

namespace console {
namespace {

QMutex mutex;

void writeToStdout(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    std::fputc('\n', stdout);
    // Flushed per line so that a supervisor or a pipe sees each line as it happens.
    std::fflush(stdout);
}

Sink &currentSink()
{
    static Sink sink = writeToStdout;
    return sink;
}

} // namespace

void line(const QString &text)
{
    QMutexLocker lock(&mutex);
    currentSink()(text);
}

Sink setSink(Sink sink)
{
    QMutexLocker lock(&mutex);
    Sink previous = std::move(currentSink());
    currentSink() = sink ? std::move(sink) : Sink(writeToStdout);
    return previous;
}

} // namespace console
