#include "onboarding/scheduler.h"

#include <QTimer>

Scheduler realScheduler()
{
    return [](QObject *context, std::chrono::milliseconds delay, std::function<void()> work) {
        QTimer::singleShot(delay, context, std::move(work));
    };
}
