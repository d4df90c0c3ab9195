#pragma once

#include <QString>

// The texts the panel and the settings window show for times.
namespace formats {

// "59s", "1m 0s", "1h 0m 0s": whole seconds, truncated; hours never fold into days.
QString uptime(double seconds);
// "%d:%02d" of the whole seconds left: 300 gives "5:00".
QString countdown(double seconds);

} // namespace formats
