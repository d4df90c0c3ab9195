#pragma once

#include <QObject>

#include <chrono>
#include <functional>

// Runs a function after a pause on the main thread. The onboarding's pauses go through it so
// that tests can run them without waiting.
using Scheduler = std::function<void(QObject *context, std::chrono::milliseconds delay,
                                     std::function<void()> work)>;

Scheduler realScheduler();
