#pragma once

#include <QString>

#include <functional>

// Console lines: the program's standard-output channel, one flushed line per call.
namespace console {

void line(const QString &text);

// Replaces where lines go (tests capture them); returns the previous sink.
using Sink = std::function<void(const QString &)>;
Sink setSink(Sink sink);

} // namespace console
