#include "platform/logging.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QMutex>
#include <QPointer>
#include <QThread>

#include <cstdio>
#include <cstring>

Q_LOGGING_CATEGORY(lcConsole, "quivra.console", QtInfoMsg)
Q_LOGGING_CATEGORY(lcLog, "quivra.log", QtInfoMsg)
Q_LOGGING_CATEGORY(lcServerOutput, "quivra.server", QtInfoMsg)

namespace logging {
namespace {

QMutex mutex;
QtMessageHandler previousHandler = nullptr;
AppLog appLog;
ConsoleSink consoleSink;
thread_local bool handling = false;
bool unflushed = false;

// On the main thread, with its loop: flushes standard output each time the loop is about to
// wait, and says so. Called with the mutex held.
bool flushBeforeTheLoopWaits()
{
    const auto *app = QCoreApplication::instance();
    if (!app || QThread::currentThread() != app->thread())
        return false;
    auto *dispatcher = QAbstractEventDispatcher::instance();
    if (!dispatcher)
        return false;
    static QPointer<QAbstractEventDispatcher> hooked;
    if (hooked != dispatcher) {
        hooked = dispatcher;
        QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, [] {
            QMutexLocker lock(&mutex);
            if (std::exchange(unflushed, false))
                std::fflush(stdout);
        });
    }
    unflushed = true;
    return true;
}

void writeToStdout(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    std::fputc('\n', stdout);
    // A supervisor or a pipe sees each line as it happens: before the loop waits again, so that
    // the lines of one turn (four for a status request) cost one write rather than one each.
    if (!flushBeforeTheLoopWaits())
        std::fflush(stdout);
}

void toConsole(const QString &text)
{
    QMutexLocker lock(&mutex);
    if (consoleSink)
        consoleSink(text);
    else
        writeToStdout(text);
}

void toAppLog(Entry kind, const QString &text)
{
    auto *app = QCoreApplication::instance();
    if (app && QThread::currentThread() != app->thread()) {
        QMetaObject::invokeMethod(
            app, [kind, text] { toAppLog(kind, text); }, Qt::QueuedConnection);
        return;
    }
    AppLog log;
    {
        QMutexLocker lock(&mutex);
        log = appLog;
    }
    if (log)
        log(kind, text);
}

bool isCategory(const QMessageLogContext &context, const QLoggingCategory &category)
{
    return context.category && std::strcmp(context.category, category.categoryName()) == 0;
}

void passOn(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    QtMessageHandler next;
    {
        QMutexLocker lock(&mutex);
        next = previousHandler;
    }
    // A handler that hands back to whatever it replaced would come round to this one again.
    if (next && !handling) {
        handling = true;
        next(type, context, text);
        handling = false;
        return;
    }
    const QByteArray line = qFormatLogMessage(type, context, text).toLocal8Bit();
    std::fprintf(stderr, "%s\n", line.constData());
}

void handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (isCategory(context, lcConsole())) {
        toConsole(text);
    } else if (isCategory(context, lcLog())) {
        toAppLog(Entry::Message, text);
    } else if (isCategory(context, lcServerOutput())) {
        // Standard output follows its own category's rules for every line written there.
        if (lcConsole().isInfoEnabled())
            toConsole(text);
        toAppLog(Entry::ServerOutput, text);
    } else {
        passOn(type, context, text);
    }
}

} // namespace

QString oneLine(const QString &text)
{
    QString line;
    line.reserve(text.size());
    for (const char32_t c : text.toUcs4()) {
        switch (c) {
        case U'\\':
            line += QLatin1String("\\\\");
            continue;
        case U'\r':
            line += QLatin1String("\\r");
            continue;
        case U'\n':
            line += QLatin1String("\\n");
            continue;
        case U'\t':
            line += QLatin1String("\\t");
            continue;
        default:
            break;
        }
        switch (QChar::category(c)) {
        case QChar::Other_Control:
        case QChar::Other_Format:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            line += c < 0x100 ? QStringLiteral("\\x%1").arg(uint(c), 2, 16, QLatin1Char('0'))
                              : QStringLiteral("\\u%1").arg(uint(c), 4, 16, QLatin1Char('0'));
            break;
        default:
            line += QStringView(QChar::fromUcs4(c));
        }
    }
    return line;
}

void install()
{
    const QtMessageHandler current = qInstallMessageHandler(handle);
    if (current == handle)
        return;
    QMutexLocker lock(&mutex);
    previousHandler = current;
}

AppLog setAppLog(AppLog log)
{
    install();
    QMutexLocker lock(&mutex);
    return std::exchange(appLog, std::move(log));
}

ConsoleSink setConsoleSink(ConsoleSink sink)
{
    install();
    QMutexLocker lock(&mutex);
    return std::exchange(consoleSink, std::move(sink));
}

} // namespace logging
